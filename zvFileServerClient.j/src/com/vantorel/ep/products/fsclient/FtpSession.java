package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.net.UnknownHostException;
import java.security.cert.CertificateException;
import java.util.Arrays;
import org.apache.commons.net.ftp.FTP;
import org.apache.commons.net.ftp.FTPClient;
import org.apache.commons.net.ftp.FTPReply;

/**
 * One logged-in connection to an FTP or FTPS server, from its making to its first failure. This is the one place where
 * the FTP library is called, and where its failures and the server's refusals become ours.
 */
final class FtpSession {
    private static final long LONGEST_ANSWER = 16L << 20;
    private static final int BUFFER_SIZE = 64 << 10;

    private final Settings settings;
    private final SessionSockets sockets = new SessionSockets();
    private final FTPClient ftp;
    private final String root;
    private TransferMode currentMode;
    private volatile boolean open = true;

    /** What the server is to do. */
    interface Command<T> {
        T run(FTPClient ftp) throws IOException;
    }

    /** Connects, logs in and finds the root. */
    FtpSession(Settings settings) throws FileServerException {
        this.settings = settings;
        ftp = settings.scheme == Settings.Scheme.FTPS ? secureClient() : new FTPClient();
        configure();
        try {
            connect();
            login();
            root = enterRoot();
        } catch (FileServerException e) {
            drop();
            throw e;
        }
    }

    /** Whether it can still be used. */
    boolean isOpen() {
        return open;
    }

    /** Logs out. Never fails. */
    void close() {
        if (open) {
            try {
                ask(FTPClient::logout);
            } catch (FileServerException e) {
                // A farewell that the server does not hear changes nothing.
            } finally {
                drop();
            }
        }
    }

    /** Closes the connection at once; any thread may do so. */
    void drop() {
        open = false;
        sockets.closeAll();
    }

    /** The name of a file as the server is to hear it. */
    String path(RemotePath path) throws FileServerException {
        if (!settings.encoding.newEncoder().canEncode(path.toString())) {
            throw new FileServerException(
                    "the encoding " + settings.encoding + " lacks a character of the name '" + path + "'");
        }
        return root + path;
    }

    /** Says how the next files travel. */
    void useMode(TransferMode mode) throws FileServerException {
        if (mode != currentMode) {
            int type = mode == TransferMode.ASCII ? FTP.ASCII_FILE_TYPE : FTP.BINARY_FILE_TYPE;
            order(client -> client.setFileType(type));
            currentMode = mode;
        }
    }

    /** Gives a command that the server must carry out. */
    void order(Command<Boolean> command) throws FileServerException {
        require(ask(command));
    }

    /** Gives a command that brings a whole file. */
    void orderFile(Command<Boolean> command) throws FileServerException {
        require(ask(Long.MAX_VALUE, command));
    }

    /** Gives a command that the server may refuse. When there is no answer, the session ends. */
    <T> T ask(Command<T> command) throws FileServerException {
        return ask(LONGEST_ANSWER, command);
    }

    private <T> T ask(long longestAnswer, Command<T> command) throws FileServerException {
        sockets.allow(longestAnswer);
        try {
            return command.run(ftp);
        } catch (IOException e) {
            drop();
            throw failure(e);
        } catch (RuntimeException e) {
            // The library's parsers throw these at answers that are none.
            drop();
            throw new BrokenConnectionException("the server's answer makes no sense: " + masked(e.toString()));
        }
    }

    /** The code of the last answer. */
    int replyCode() {
        return ftp.getReplyCode();
    }

    /** Whether the last answer allows to go on. When it asks for another attempt, the session ends. */
    void require(boolean success) throws FileServerException {
        if (!success) {
            String reason = "the server answered '" + reply() + "'";
            if (FTPReply.isNegativePermanent(replyCode())) {
                throw new FileServerException(reason);
            }
            drop();
            throw new BrokenConnectionException(reason);
        }
    }

    private FTPClient secureClient() throws FileServerException {
        SecureFtpClient client = new SecureFtpClient(
                settings.implicit, TlsContext.trusting(settings.certificates), sockets, settings.host);
        client.setEnabledProtocols(settings.protocols);
        client.setEndpointCheckingEnabled(settings.checkHost);
        return client;
    }

    private void configure() {
        ftp.setSocketFactory(sockets);
        ftp.setServerSocketFactory(sockets.serverSockets());
        ftp.setConnectTimeout((int) settings.connectTimeout.toMillis());
        ftp.setDefaultTimeout((int) settings.connectTimeout.toMillis());
        ftp.setDataTimeout(settings.timeout);
        ftp.setControlEncoding(settings.encoding.name());
        ftp.setBufferSize(BUFFER_SIZE);
        if (settings.passive) {
            ftp.enterLocalPassiveMode();
        }
    }

    private void connect() throws FileServerException {
        order(client -> {
            client.connect(settings.host, settings.port);
            client.setSoTimeout((int) settings.timeout.toMillis());
            client.setKeepAlive(true);
            return FTPReply.isPositiveCompletion(client.getReplyCode());
        });
    }

    private void login() throws FileServerException {
        boolean welcome = ask(client -> client.login(settings.user, settings.password));
        if (!welcome && FTPReply.isNegativePermanent(replyCode())) {
            throw new FileServerException("the server does not let user '" + settings.user + "' in: " + reply());
        }
        require(welcome);
        ask(client -> {
            if (client instanceof SecureFtpClient) {
                ((SecureFtpClient) client).protectData();
            }
            // Some servers speak UTF-8 only when told to; the others need not know the command.
            if (client.hasFeature("UTF8") && settings.encoding.name().equals("UTF-8")) {
                client.sendCommand("OPTS", "UTF8 ON");
            }
            return null;
        });
    }

    private String enterRoot() throws FileServerException {
        if (!settings.serverPath.isEmpty()) {
            order(client -> client.changeWorkingDirectory(settings.serverPath));
        }
        String directory = ask(FTPClient::printWorkingDirectory);
        require(directory != null);
        return directory.endsWith("/") ? directory : directory + "/";
    }

    private FileServerException failure(IOException failure) {
        Throwable innermost = failure;
        for (Throwable e = failure; e != null; e = e.getCause()) {
            if (e instanceof FileServerException) {
                return (FileServerException) e;
            } else if (e instanceof UnknownHostException) {
                return new BrokenConnectionException("the host '" + settings.host + "' is not known");
            } else if (e instanceof CertificateException) {
                return new FileServerException("the server's certificate is not trusted: " + masked(e.toString()));
            }
            innermost = e;
        }
        String reason = innermost.getMessage() == null ? innermost.toString() : innermost.getMessage();
        return new BrokenConnectionException(masked(reason));
    }

    private String reply() {
        return masked(String.join(" ", Arrays.asList(ftp.getReplyStrings())));
    }

    /** A text from outside, fit for a message: a server may answer with the password that it was given. */
    private String masked(String text) {
        String line = text.replaceAll("\\p{Cntrl}+", " ").trim();
        return settings.password.isEmpty() ? line : line.replace(settings.password, "********");
    }
}
