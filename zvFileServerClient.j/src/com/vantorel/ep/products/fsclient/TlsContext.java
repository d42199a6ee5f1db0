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
 * Makes the TLS context of a configuration.
 *
 * <p>Its sessions are resumed by their identifiers. Java can ask for tickets instead, but takes none that is valid for
 * more than a week, which some servers hand out; these then neither know an identifier nor let an unresumed data
 * connection pass. Where a server knows tickets only, Java's own property says so.
 */
final class TlsContext {
    private static final String TICKETS = "jdk.tls.client.enableSessionTicketExtension";

    private TlsContext() {}

    /**
     * A context that trusts the certificates of a PEM file.
     *
     * @param file the file, or null for what the Java installation trusts
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

    /** A context reads the property once, when it is made; nobody else is to see it changed. */
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
            throw new IOException("it holds none");
        }
        return store;
    }
}
