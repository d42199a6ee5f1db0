package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.net.UnknownHostException;
import java.security.cert.CertificateException;
import java.util.Arrays;
import javax.net.ssl.SSLException;
import org.apache.commons.net.ftp.FTP;
import org.apache.commons.net.ftp.FTPClient;
import org.apache.commons.net.ftp.FTPFile;
import org.apache.commons.net.ftp.FTPReply;

/**
 * One session with an FTP or FTPS server, which ends at its first failure. Wraps the FTP library and converts
 * its exceptions and the server's negative replies to {@link FileServerException}s.
 */
final class FtpSession {
    private static final long LONGEST_ANSWER = 16L << 20;
    private static final int BUFFER_SIZE = 64 << 10;

    private final Settings settings;
    private final TimeLimits limits;
    private final SessionSockets sockets;
    private final FTPClient ftp;
    private final String root;
    private TransferMode currentMode;
    /** What the server says of its system, once it was asked; empty when it does not say it. */
    private String system;
    private volatile boolean open = true;

    /** A command for the server. */
    interface Command<T> {
        T run(FTPClient ftp) throws IOException;
    }

    /** Connects, logs in and determines the root. */
    FtpSession(Settings settings, TimeLimits limits) throws FileServerException {
        this.settings = settings;
        this.limits = limits;
        sockets = new SessionSockets(limits);
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

    /** Whether the session can still be used. */
    boolean isOpen() {
        return open;
    }

    /** Logs out. Never fails. */
    void close() {
        if (open) {
            try {
                ask(FTPClient::logout);
            } catch (FileServerException e) {
                // The session ends anyway.
            } finally {
                drop();
            }
        }
    }

    /** Closes the connection at once. Thread-safe. */
    void drop() {
        open = false;
        sockets.closeAll();
    }

    /** The absolute path of a file on the server. */
    String path(RemotePath path) throws FileServerException {
        if (!settings.encoding.newEncoder().canEncode(path.toString())) {
            throw new FileServerException(
                    "the encoding " + settings.encoding + " cannot encode the name '" + path + "'");
        }
        return root + path;
    }

    /** Sets the transfer mode of the next files. */
    void useMode(TransferMode mode) throws FileServerException {
        if (mode != currentMode) {
            int type = mode == TransferMode.ASCII ? FTP.ASCII_FILE_TYPE : FTP.BINARY_FILE_TYPE;
            order(client -> client.setFileType(type));
            currentMode = mode;
        }
    }

    /** The line ends of the server's system. */
    LineEnds lineEnds() throws FileServerException {
        return LineEnds.ofSystem(system());
    }

    /** The names in the working directory, with their kinds; a name may be null. */
    FTPFile[] list(boolean hidden) throws FileServerException {
        boolean hasMlsd = ask(client -> client.hasFeature("MLST"));
        String system = hasMlsd ? null : ListingSystem.named(system());
        FTPFile[] files = ask(client -> {
            client.setListHiddenFiles(hidden);
            return hasMlsd ? client.mlistDir() : client.initiateListParsing(system, null).getFiles();
        });
        require(FTPReply.isPositiveCompletion(replyCode()));
        return files;
    }

    private String system() throws FileServerException {
        if (system == null) {
            boolean known = ask(client -> FTPReply.isPositiveCompletion(client.syst()));
            // After the reply code.
            system = known ? ftp.getReplyString().substring(3) : "";
        }
        return system;
    }

    /** Sends a command and fails on a negative reply. */
    void order(Command<Boolean> command) throws FileServerException {
        require(ask(command));
    }

    /** The same for a command that fetches a file, whose size and time are not limited. */
    void orderFile(Command<Boolean> command) throws FileServerException {
        limits.beginFile();
        try {
            require(ask(Long.MAX_VALUE, command));
        } finally {
            limits.endFile();
        }
    }

    /** Sends a command to which the reply may be negative. Without a reply, the session ends. */
    <T> T ask(Command<T> command) throws FileServerException {
        return ask(LONGEST_ANSWER, command);
    }

    private <T> T ask(long longestAnswer, Command<T> command) throws FileServerException {
        sockets.allow(longestAnswer);
        limits.ask();
        try {
            return command.run(ftp);
        } catch (IOException e) {
            drop();
            throw failure(e);
        } catch (RuntimeException e) {
            // The library's parsers throw these for malformed replies.
            drop();
            if (e.getCause() instanceof BrokenConnectionException) {
                throw (BrokenConnectionException) e.getCause();
            }
            throw new BrokenConnectionException("malformed reply of the server: " + masked(e.toString()));
        }
    }

    /** The code of the last reply. */
    int replyCode() {
        return ftp.getReplyCode();
    }

    /** Throws unless {@code success}. A transient negative reply ends the session, for a retry. */
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
        ftp.setParserFactory(new ListingSystem(limits));
        ftp.setConnectTimeout((int) settings.connectTimeout.toMillis());
        ftp.setDefaultTimeout((int) settings.connectTimeout.toMillis());
        ftp.setDataTimeout(settings.timeout);
        ftp.setControlEncoding(settings.encoding.name());
        ftp.setBufferSize(BUFFER_SIZE);
        // Data goes to the host of the control connection, whatever host the reply to PASV names.
        ftp.setIpAddressFromPasvResponse(false);
    }

    private void connect() throws FileServerException {
        order(client -> {
            encrypt(() -> client.connect(settings.host, settings.port));
            client.setSoTimeout((int) settings.timeout.toMillis());
            client.setKeepAlive(true);
            // Connecting resets it.
            if (settings.passive) {
                client.enterLocalPassiveMode();
            }
            return FTPReply.isPositiveCompletion(client.getReplyCode());
        });
    }

    /** The library says of a server without encryption no more than what it has answered. */
    private void encrypt(Connecting connecting) throws IOException {
        try {
            connecting.run();
        } catch (SSLException e) {
            String said = String.valueOf(e.getMessage());
            if (FTPReply.isNegativePermanent(replyCode())) {
                throw new FileServerException("the server offers no TLS: it answered '" + reply() + "'");
            } else if (said.startsWith("Unsupported or unrecognized SSL message")) {
                throw new FileServerException("the server offers no TLS on this port, or not with this ftps-mode: "
                        + masked(said));
            }
            throw e;
        }
    }

    private interface Connecting {
        void run() throws IOException;
    }

    private void login() throws FileServerException {
        boolean welcome = ask(client -> client.login(settings.user, settings.password));
        if (!welcome && FTPReply.isNegativePermanent(replyCode())) {
            throw new FileServerException(
                    "the server refuses the login of user '" + settings.shownUser() + "': " + reply());
        }
        require(welcome);
        ask(client -> {
            if (client instanceof SecureFtpClient) {
                ((SecureFtpClient) client).protectData();
            }
            // Some servers use UTF-8 only after this command; others may not support it.
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
                return new BrokenConnectionException("unknown host '" + settings.host + "'");
            } else if (e instanceof CertificateException) {
                return new FileServerException("the server's certificate is not trusted: " + masked(e.toString()));
            }
            innermost = e;
        }
        String reason = innermost.getMessage() == null ? innermost.toString() : innermost.getMessage();
        return new BrokenConnectionException(masked(reason));
    }

    /** The last reply, for a message. */
    String reply() {
        return masked(String.join(" ", Arrays.asList(ftp.getReplyStrings())));
    }

    /** Sanitises external text for a message: a server may echo the password in a reply. */
    private String masked(String text) {
        return Masking.masked(text.replaceAll("\\p{Cntrl}+", " ")).trim();
    }
}
