package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.InputStream;
import java.net.InetAddress;
import java.net.ServerSocket;
import java.net.Socket;
import java.util.Set;
import java.util.concurrent.ConcurrentHashMap;
import javax.net.ServerSocketFactory;
import org.apache.commons.net.DefaultSocketFactory;

/**
 * Creates and tracks the sockets of one FTP session, so that stalled ones can be closed from another thread,
 * and limits the number of bytes that a server can send as a reply, and the time that it can take.
 */
final class SessionSockets extends DefaultSocketFactory {
    private final Set<Socket> open = ConcurrentHashMap.newKeySet();
    private final TimeLimits limits;
    private long allowance;

    SessionSockets(TimeLimits limits) {
        this.limits = limits;
    }

    /** Sets the number of bytes that may be received from now on. */
    void allow(long bytes) {
        allowance = bytes;
    }

    /** Closes all sockets, even those in use by another thread. */
    void closeAll() {
        for (Socket socket : open) {
            try {
                socket.close();
            } catch (IOException e) {
                // The socket is dropped anyway.
                open.remove(socket);
            }
        }
    }

    @Override
    public Socket createSocket() {
        return new SessionSocket();
    }

    /** Creates the sockets for active mode, to which the server connects. */
    ServerSocketFactory serverSockets() {
        return new ServerSocketFactory() {
            @Override
            public ServerSocket createServerSocket(int port) throws IOException {
                return new ListeningSocket(port, 1, null);
            }

            @Override
            public ServerSocket createServerSocket(int port, int backlog) throws IOException {
                return new ListeningSocket(port, backlog, null);
            }

            @Override
            public ServerSocket createServerSocket(int port, int backlog, InetAddress address) throws IOException {
                return new ListeningSocket(port, backlog, address);
            }
        };
    }

    /** Makes a data socket report another port, for which TLS then looks up the session to resume. */
    static void presentAs(Socket socket, int port) {
        ((SessionSocket) socket).presentedPort = port;
    }

    private final class ListeningSocket extends ServerSocket {
        ListeningSocket(int port, int backlog, InetAddress address) throws IOException {
            super(port, backlog, address);
        }

        @Override
        public Socket accept() throws IOException {
            Socket socket = createSocket();
            implAccept(socket);
            return socket;
        }
    }

    private final class SessionSocket extends Socket {
        private int presentedPort;

        SessionSocket() {
            open.add(this);
        }

        @Override
        public int getPort() {
            return presentedPort == 0 ? super.getPort() : presentedPort;
        }

        @Override
        public InputStream getInputStream() throws IOException {
            return new LimitedInput(super.getInputStream());
        }

        @Override
        public void close() throws IOException {
            open.remove(this);
            super.close();
        }
    }

    private final class LimitedInput extends BulkInput {
        LimitedInput(InputStream in) {
            super(in);
        }

        @Override
        public int read(byte[] bytes, int offset, int length) throws IOException {
            int count = in.read(bytes, offset, length);
            limits.moved(count);
            limits.check();
            allowance -= count;
            if (allowance < 0) {
                throw new IOException("the server's answer does not end");
            }
            return count;
        }
    }
}
