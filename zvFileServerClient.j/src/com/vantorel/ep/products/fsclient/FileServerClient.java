package com.vantorel.ep.products.fsclient;

import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Collection;
import java.util.Deque;
import java.util.List;
import java.util.Map;

/**
 * Moves files between this host and a file server.
 *
 * <p>A file arrives whole or not at all, in both directions: an existing file is replaced only by a complete one.
 * When a connection breaks, the operation is repeated over a new one, as often as configured. An operation that moves
 * several files checks every name first, and ends with the first file that fails; what arrived before stays.
 *
 * <p>Remote names are taken from the configured root. {@code /} and {@code \} both separate, also in front; no name
 * leads out of the root. Local names are those of this host. Files that are still arriving ({@code .zv-*.part}) or
 * being replaced ({@code .zv-*.old}) are invisible to listings and filters.
 *
 * <p>Every failure is a {@link FileServerException} that names the file and the reason. One thread at a time may use a
 * client.
 */
public final class FileServerClient {
    private final String url;
    private final Transport transport;
    private final Retry retry;
    private TransferMode mode = TransferMode.BINARY;
    private boolean connected;

    FileServerClient(String url, Transport transport, Retry retry) {
        this.url = url;
        this.transport = transport;
        this.retry = retry;
    }

    /** Connects and logs in; every operation on files needs it first. Does nothing when that is already so. */
    public void connect() throws FileServerException {
        explained("connect to " + url, () -> retry.run(() -> null));
        connected = true;
    }

    /** Ends the connection. Does nothing when there is none. */
    public void disconnect() {
        transport.disconnect();
        connected = false;
    }

    /**
     * Says how the files travel from now on; at first it is binary.
     *
     * @param code 0 for binary (unchanged), 1 for ASCII (line ends become those of the receiving system; with a
     *     directory as file server, those of this one)
     */
    public void setFileTransferMode(int code) throws FileServerException {
        mode = explained("set the file transfer mode " + code, () -> TransferMode.ofCode(code));
    }

    /**
     * Fetches a file.
     *
     * @param local the file's name on this host, in an existing directory
     */
    public void get(String remote, String local) throws FileServerException {
        fetch(explained(fetching(remote, local), () -> FilePair.of(remote, local)));
    }

    /**
     * Fetches some files of a directory into an existing local one.
     *
     * @param files the names, without directories
     */
    public void get(String remoteDir, String localDir, List<String> files) throws FileServerException {
        String what = "get files from remote directory '" + remoteDir + "' to local directory '" + localDir + "'";
        for (FilePair pair : explained(what, () -> FilePair.of(remoteDir, localDir, files))) {
            fetch(pair);
        }
    }

    /**
     * Fetches the regular files of a directory whose names match, into an existing local one.
     *
     * @param filter a pattern with {@code *}, {@code ?} and {@code [...]}; {@code *} matches every name
     */
    public void get(String remoteDir, String localDir, String filter) throws FileServerException {
        String what = "get files '" + filter + "' from remote directory '" + remoteDir + "' to local directory '"
                + localDir + "'";
        List<FilePair> pairs = onServer(what,
                () -> FilePair.of(remoteDir, localDir, matching(filter, remoteFileNames(RemotePath.of(remoteDir)))));
        for (FilePair pair : pairs) {
            fetch(pair);
        }
    }

    /** Sends a file into an existing directory. */
    public void put(String local, String remote) throws FileServerException {
        send(explained(sending(local, remote), () -> FilePair.of(remote, local)));
    }

    /**
     * Sends some files of a local directory into an existing remote one.
     *
     * @param files the names, without directories
     */
    public void put(String localDir, String remoteDir, List<String> files) throws FileServerException {
        String what = "put files from local directory '" + localDir + "' to remote directory '" + remoteDir + "'";
        for (FilePair pair : explained(what, () -> FilePair.of(remoteDir, localDir, files))) {
            send(pair);
        }
    }

    /**
     * Sends the regular files of a local directory whose names match, into an existing remote one.
     *
     * @param filter a pattern with {@code *}, {@code ?} and {@code [...]}; {@code *} matches every name
     */
    public void put(String localDir, String remoteDir, String filter) throws FileServerException {
        String what = "put files '" + filter + "' from local directory '" + localDir + "' to remote directory '"
                + remoteDir + "'";
        List<FilePair> pairs = explained(what, () -> FilePair.of(remoteDir, localDir,
                matching(filter, LocalFiles.fileNames(LocalFiles.directory(localDir)))));
        for (FilePair pair : pairs) {
            send(pair);
        }
    }

    /** Makes a directory and those above it, as far as they do not exist. */
    public void mkDir(String dir) throws FileServerException {
        onServer("make directory '" + dir + "' on the file server", () -> {
            RemotePath directory = RemotePath.of(dir);
            return retry.run(() -> {
                makeDirectories(directory);
                return null;
            });
        });
    }

    /** Whether there is a file, a directory or anything else of that name. */
    public boolean exists(String path) throws FileServerException {
        return onServer("tell whether '" + path + "' exists on the file server", () -> {
            RemotePath name = RemotePath.of(path);
            return retry.run(() -> transport.kind(name)) != Transport.Kind.ABSENT;
        });
    }

    /** The names of everything in a directory, sorted. */
    public String[] list(String dir) throws FileServerException {
        return onServer("list directory '" + dir + "' of the file server", () -> {
            List<String> names = new ArrayList<>();
            for (String name : listing(RemotePath.of(dir)).keySet()) {
                names.add(RemotePath.checkFileName(name));
            }
            return names.toArray(new String[0]);
        });
    }

    /** The url of the file server. */
    @Override
    public String toString() {
        return url;
    }

    private void fetch(FilePair pair) throws FileServerException {
        onServer(fetching(pair.remote, pair.local), () -> {
            new Download(transport, retry, mode).run(pair.remote, pair.local);
            return null;
        });
    }

    private void send(FilePair pair) throws FileServerException {
        onServer(sending(pair.local, pair.remote), () -> {
            new Upload(transport, retry, mode, pair.local, pair.remote).run();
            return null;
        });
    }

    private Map<String, Transport.Kind> listing(RemotePath directory) throws FileServerException {
        Map<String, Transport.Kind> entries = retry.run(() -> transport.list(directory));
        entries.keySet().removeIf(TemporaryName::matches);
        return entries;
    }

    private Collection<String> remoteFileNames(RemotePath directory) throws FileServerException {
        Map<String, Transport.Kind> entries = listing(directory);
        entries.values().removeIf(kind -> kind != Transport.Kind.FILE);
        return entries.keySet();
    }

    private static List<String> matching(String filter, Collection<String> names) throws FileServerException {
        Glob glob = new Glob(filter);
        List<String> matching = new ArrayList<>();
        for (String name : names) {
            if (glob.matches(name) && !TemporaryName.matches(name)) {
                matching.add(name);
            }
        }
        return matching;
    }

    private void makeDirectories(RemotePath directory) throws FileServerException {
        Deque<RemotePath> missing = new ArrayDeque<>();
        RemotePath path = directory;
        Transport.Kind kind = transport.kind(path);
        while (kind == Transport.Kind.ABSENT) {
            missing.push(path);
            path = path.parent();
            kind = transport.kind(path);
        }
        if (kind != Transport.Kind.DIRECTORY) {
            throw new FileServerException("'" + path + "' is not a directory");
        }
        while (!missing.isEmpty()) {
            makeDirectory(missing.pop());
        }
    }

    private void makeDirectory(RemotePath directory) throws FileServerException {
        try {
            transport.makeDirectory(directory);
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            // Another process may have been faster.
            if (transport.kind(directory) != Transport.Kind.DIRECTORY) {
                throw e;
            }
        }
    }

    private static String fetching(Object remote, Object local) {
        return "get remote file '" + remote + "' to local file '" + local + "'";
    }

    private static String sending(Object local, Object remote) {
        return "put local file '" + local + "' to remote file '" + remote + "'";
    }

    private <T> T onServer(String what, Retry.Operation<T> operation) throws FileServerException {
        return explained(what, () -> {
            if (!connected) {
                throw new FileServerException("not connected to " + url);
            }
            return operation.run();
        });
    }

    private static <T> T explained(String what, Retry.Operation<T> operation) throws FileServerException {
        try {
            return operation.run();
        } catch (FileServerException e) {
            throw new FileServerException("Cannot " + what + ": " + e.getMessage(), e);
        }
    }
}
