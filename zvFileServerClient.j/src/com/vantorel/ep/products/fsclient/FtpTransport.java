package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.OutputStream;
import java.util.Set;
import java.util.SortedMap;
import java.util.TreeMap;
import java.util.regex.Pattern;
import org.apache.commons.net.ftp.FTPClient;
import org.apache.commons.net.ftp.FTPFile;
import org.apache.commons.net.ftp.FTPReply;

/**
 * An FTP or FTPS server as file server. All paths are absolute, so nothing depends on the session's working
 * directory.
 */
final class FtpTransport implements Transport {
    /** A listing's entry for the directory itself or its parent, whose name may be a full path. */
    private static final Pattern OWN_ENTRY = Pattern.compile("^(\\S*;)?type=[cp]dir;", Pattern.CASE_INSENSITIVE);

    private final Settings settings;
    private final TimeLimits limits;
    private FtpSession session;

    FtpTransport(Settings settings) {
        this.settings = settings;
        this.limits = new TimeLimits(settings);
    }

    @Override
    public void beginAttempt() {
        limits.begin();
    }

    @Override
    public void connect() throws FileServerException {
        if (session == null || !session.isOpen()) {
            session = new FtpSession(settings, limits);
        }
    }

    @Override
    public void disconnect() {
        if (session != null) {
            session.close();
        }
    }

    @Override
    public Kind kind(RemotePath path) throws FileServerException {
        if (path.isRoot()) {
            return Kind.DIRECTORY;
        }
        String name = session.path(path);
        if (session.ask(ftp -> ftp.hasFeature("MLST"))) {
            FTPFile file = session.ask(ftp -> ftp.mlistFile(name));
            return file == null ? absent() : kindOf(file);
        }
        if (session.ask(ftp -> ftp.changeWorkingDirectory(name))) {
            return Kind.DIRECTORY;
        }
        session.useMode(TransferMode.BINARY);
        if (session.ask(ftp -> ftp.getSize(name)) != null) {
            return Kind.FILE;
        }
        return commandUnknown() ? kindInListing(path) : absent();
    }

    @Override
    public long size(RemotePath file) throws FileServerException {
        String name = session.path(file);
        session.useMode(TransferMode.BINARY);
        String size = session.ask(ftp -> ftp.getSize(name));
        if (size == null && FTPReply.isNegativePermanent(session.replyCode())) {
            // Some servers refuse SIZE for files that they do send; if not, the reply to RETR gives a better
            // reason.
            return UNKNOWN_SIZE;
        }
        session.require(size != null);
        return session.ask(ftp -> Long.parseLong(size.trim()));
    }

    @Override
    public SortedMap<String, Kind> list(RemotePath directory) throws FileServerException {
        return list(directory, false);
    }

    @Override
    public Set<String> listHidden(RemotePath directory) throws FileServerException {
        return list(directory, true).keySet();
    }

    private SortedMap<String, Kind> list(RemotePath directory, boolean hidden) throws FileServerException {
        String name = session.path(directory);
        // Changes the working directory, since servers may interpret an argument of LIST as an option or a
        // pattern.
        session.order(ftp -> ftp.changeWorkingDirectory(name));
        SortedMap<String, Kind> names = new TreeMap<>();
        for (FTPFile file : session.list(hidden)) {
            if (file != null && !isDirectoryItself(file)) {
                names.put(file.getName(), kindOf(file));
            }
        }
        return names;
    }

    @Override
    public void receive(RemotePath source, TransferMode mode, OutputStream target) throws FileServerException {
        String name = session.path(source);
        session.useMode(mode);
        session.orderFile(ftp -> ftp.retrieveFile(name, target));
    }

    @Override
    public void send(LocalSource source, TransferMode mode, RemotePath target) throws FileServerException {
        String name = session.path(target);
        session.useMode(mode);
        limits.beginFile();
        try (StallGuard guard = new StallGuard(limits, session::drop)) {
            try {
                boolean stored = session.ask(ftp -> {
                    ftp.setCopyStreamListener(guard);
                    boolean done = store(ftp, name, source);
                    ftp.setCopyStreamListener(null);
                    return done;
                });
                if (!stored && source.offset() > 0 && source.position() == source.offset()
                        && session.replyCode() != FTPReply.CANNOT_OPEN_DATA_CONNECTION) {
                    throw new ResumeRefusedException("the server answered '" + session.reply() + "'");
                }
                session.require(stored);
            } catch (BrokenConnectionException e) {
                throw guard.reason() == null ? e : guard.reason();
            }
        } finally {
            limits.endFile();
        }
    }

    /** Without the feature the meaning of REST is the server's own; APPE is an old command of every server. */
    private static boolean store(FTPClient ftp, String name, LocalSource source) throws IOException {
        if (source.offset() > 0) {
            if (!ftp.hasFeature("REST", "STREAM")) {
                return ftp.appendFile(name, source);
            }
            ftp.setRestartOffset(source.offset());
        }
        return ftp.storeFile(name, source);
    }

    @Override
    public LineEnds lineEnds() throws FileServerException {
        return session.lineEnds();
    }

    @Override
    public void makeDirectory(RemotePath directory) throws FileServerException {
        String name = session.path(directory);
        session.order(ftp -> ftp.makeDirectory(name));
    }

    @Override
    public void rename(RemotePath from, RemotePath to) throws FileServerException {
        String source = session.path(from);
        String target = session.path(to);
        session.order(ftp -> ftp.rename(source, target));
    }

    @Override
    public void delete(RemotePath file) throws FileServerException {
        String name = session.path(file);
        session.order(ftp -> ftp.deleteFile(name));
    }

    private Kind kindInListing(RemotePath path) throws FileServerException {
        if (kind(path.parent()) != Kind.DIRECTORY) {
            return Kind.ABSENT;
        }
        return list(path.parent()).getOrDefault(path.fileName(), Kind.ABSENT);
    }

    /** Returns {@code ABSENT} if the last reply means that; throws for any other. */
    private Kind absent() throws FileServerException {
        session.require(session.replyCode() == FTPReply.FILE_UNAVAILABLE);
        return Kind.ABSENT;
    }

    private boolean commandUnknown() {
        return session.replyCode() >= 500 && session.replyCode() <= 504;
    }

    private static boolean isDirectoryItself(FTPFile file) {
        String name = file.getName();
        return name == null || name.equals(".") || name.equals("..")
                || OWN_ENTRY.matcher(String.valueOf(file.getRawListing())).find();
    }

    private static Kind kindOf(FTPFile file) {
        return file.isDirectory() ? Kind.DIRECTORY : file.isFile() ? Kind.FILE : Kind.OTHER;
    }
}
