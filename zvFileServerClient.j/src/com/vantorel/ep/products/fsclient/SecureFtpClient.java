package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.net.Socket;
import javax.net.ssl.SSLContext;
import javax.net.ssl.SSLParameters;
import javax.net.ssl.SSLSocket;
import org.apache.commons.net.ftp.FTPSClient;

/**
 * An FTPS client whose data connections resume the TLS session of the control connection. Many servers
 * require that, as proof that both are from the same client.
 */
final class SecureFtpClient extends FTPSClient {
    private final SSLContext context;
    private final SessionSockets sockets;
    private final String host;

    SecureFtpClient(boolean implicit, SSLContext context, SessionSockets sockets, String host) {
        super(implicit, context);
        this.context = context;
        this.sockets = sockets;
        this.host = host;
    }

    /** Encrypts the data connections from now on. */
    void protectData() throws IOException {
        execPBSZ(0);
        execPROT("P");
        // Replaces the library's socket factories, which do not resume the session.
        setSocketFactory(sockets);
        setServerSocketFactory(sockets.serverSockets());
    }

    @Override
    protected Socket _openDataConnection_(String command, String argument) throws IOException {
        Socket plain = super._openDataConnection_(command, argument);
        if (plain == null) {
            return null;
        }
        SessionSockets.presentAs(plain, _socket_.getPort());
        SSLSocket secure = (SSLSocket) context.getSocketFactory().createSocket(plain, host, _socket_.getPort(), true);
        if (isEndpointCheckingEnabled()) {
            SSLParameters parameters = secure.getSSLParameters();
            parameters.setEndpointIdentificationAlgorithm("HTTPS");
            secure.setSSLParameters(parameters);
        }
        secure.setEnabledProtocols(getEnabledProtocols());
        secure.setUseClientMode(true);
        try {
            secure.startHandshake();
        } catch (IOException e) {
            secure.close();
            throw e;
        }
        return secure;
    }
}
