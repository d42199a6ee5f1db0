package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.security.GeneralSecurityException;
import java.security.KeyStore;
import java.security.cert.Certificate;
import java.security.cert.CertificateFactory;
import javax.net.ssl.SSLContext;
import javax.net.ssl.TrustManagerFactory;

/**
 * Creates the TLS context of a configuration.
 *
 * <p>Sessions are resumed by session ID. Session tickets are disabled, since Java rejects those with a
 * lifetime of more than a week: servers that issue them then know no session ID either, and refuse data
 * connections that do not resume. For servers that support tickets only, set Java's own property.
 */
final class TlsContext {
    private static final String TICKETS = "jdk.tls.client.enableSessionTicketExtension";

    private TlsContext() {}

    /**
     * A context that trusts the certificates of a PEM file.
     *
     * @param file the file, or null for Java's default trust store
     */
    static SSLContext trusting(Path file) throws FileServerException {
        try {
            TrustManagerFactory trust = TrustManagerFactory.getInstance(TrustManagerFactory.getDefaultAlgorithm());
            trust.init(file == null ? null : store(file));
            return withoutTickets(trust);
        } catch (GeneralSecurityException | IOException e) {
            throw new FileServerException("cannot use the certificates "
                    + (file == null ? "of the Java installation" : "in '" + file + "'") + ": " + e.getMessage(), e);
        }
    }

    /** A context reads the property when it is created; it is restored afterwards. */
    private static SSLContext withoutTickets(TrustManagerFactory trust) throws GeneralSecurityException {
        boolean chosen = System.getProperty(TICKETS) != null;
        try {
            if (!chosen) {
                System.setProperty(TICKETS, "false");
            }
            SSLContext context = SSLContext.getInstance("TLS");
            context.init(null, trust.getTrustManagers(), null);
            return context;
        } finally {
            if (!chosen) {
                System.clearProperty(TICKETS);
            }
        }
    }

    private static KeyStore store(Path file) throws GeneralSecurityException, IOException {
        KeyStore store = KeyStore.getInstance(KeyStore.getDefaultType());
        store.load(null, null);
        try (InputStream in = Files.newInputStream(file)) {
            for (Certificate certificate : CertificateFactory.getInstance("X.509").generateCertificates(in)) {
                store.setCertificateEntry("certificate" + store.size(), certificate);
            }
        }
        if (store.size() == 0) {
            throw new IOException("the file contains none");
        }
        return store;
    }
}
