package com.vantorel.ep.products.fsclient;

import java.util.ArrayList;
import java.util.Collection;
import java.util.List;
import java.util.Map;

/**
 * Transfers files between this host and a file server.
 *
 * <p>The transfer of a file is atomic in both directions: an existing file is replaced only by a complete
 * one. When a connection breaks, the operation is retried over a new one, as often as configured, and the
 * upload of a large binary file is continued, even by a later process on the same host. An operation on
 * several files validates all names first and stops at the first failure; files transferred
 * before stay.
 *
 * <p>Remote paths are relative to the configured root, even with a leading separator; {@code /} and {@code \}
 * are both separators, and no path escapes the root. Local paths are those of this host. Temporary files of a
 * transfer ({@code .zv-*.part}) and files being replaced ({@code .zv-*.old}) are hidden from listings and
 * filters.
 *
 * <p>Every failure is a {@link FileServerException} that names the file and the reason. Not thread-safe: one
 * thread at a time may use a client.
 *
 * <p>What the first operations run has no lambdas, streams or regular expressions: a process lives for a few
 * files, and setting those up takes longer than moving a small one.
 */
public final class FileServerClient {
    private final String url;
    private final Transport transport;
    private final Retry retry;
    private final long resumeFrom;
    private final long largestFile;
    /** The directory that was created last, where nobody can have left anything. */
    private String newest;
    private TransferMode mode = TransferMode.BINARY;
    private boolean connected;

    FileServerClient(Settings settings, Transport transport) {
        url = settings.url;
        this.transport = transport;
        retry = new Retry(transport, settings.retries, settings.retryDelay);
        resumeFrom = settings.resumeFrom;
        largestFile = settings.largestFile;
    }

    /** Connects and logs in, which is required before any file operation. Idempotent. */
    public void connect() throws FileServerException {
        String what = "connect to " + url;
        try {
            retry.run(what, new Retry.Operation<Void>() {
                @Override
                public Void run() {
                    return null;
                }
            });
        } catch (FileServerException e) {
            throw explained(what, e);
        }
        connected = true;
    }

    /** Disconnects. Idempotent. */
    public void disconnect() {
        transport.disconnect();
        connected = false;
    }

    /**
     * Sets the transfer mode of later transfers; the default is binary.
     *
     * @param code 0 for binary (unchanged), 1 for ASCII (line ends are converted to those of the receiving system;
     *     with a directory as file server, to those of this host)
     */
    public void setFileTransferMode(int code) throws FileServerException {
        try {
            mode = TransferMode.ofCode(code);
        } catch (FileServerException e) {
            throw explained("set the file transfer mode " + code, e);
        }
    }

    /**
     * Downloads a file.
     *
     * @param local the file's path on this host, in an existing directory
     */
    public void get(String remote, String local) throws FileServerException {
        FilePair pair;
        try {
            pair = FilePair.of(remote, local);
        } catch (FileServerException e) {
            throw explained(fetching(remote, local), e);
        }
        fetch(pair);
    }

    /**
     * Downloads some files of a directory into an existing local one.
     *
     * @param files the names, without directories
     */
    public void get(String remoteDir, String localDir, List<String> files) throws FileServerException {
        String what = "get files from remote directory '" + remoteDir + "' to local directory '" + localDir + "'";
        for (FilePair pair : pairs(what, remoteDir, localDir, files)) {
            fetch(pair);
        }
    }

    /**
     * Downloads the regular files of a directory whose names match into an existing local one.
     *
     * @param filter a glob pattern; {@code *} matches every name, even with a leading dot
     */
    public void get(String remoteDir, String localDir, String filter) throws FileServerException {
        String what = "get files '" + filter + "' from remote directory '" + remoteDir + "' to local directory '"
                + localDir + "'";
        List<String> names;
        try {
            requireConnection();
            names = matching(filter, remoteFileNames(what, RemotePath.of(remoteDir)));
        } catch (FileServerException e) {
            throw explained(what, e);
        }
        for (FilePair pair : pairs(what, remoteDir, localDir, names)) {
            fetch(pair);
        }
    }

    /** Uploads a file into an existing directory. */
    public void put(String local, String remote) throws FileServerException {
        FilePair pair;
        try {
            pair = FilePair.of(remote, local);
        } catch (FileServerException e) {
            throw explained(sending(local, remote), e);
        }
        send(pair);
    }

    /**
     * Uploads some files of a local directory into an existing remote one.
     *
     * @param files the names, without directories
     */
    public void put(String localDir, String remoteDir, List<String> files) throws FileServerException {
        String what = "put files from local directory '" + localDir + "' to remote directory '" + remoteDir + "'";
        for (FilePair pair : pairs(what, remoteDir, localDir, files)) {
            send(pair);
        }
    }

    /**
     * Uploads the regular files of a local directory whose names match into an existing remote one.
     *
     * @param filter a glob pattern; {@code *} matches every name, even with a leading dot
     */
    public void put(String localDir, String remoteDir, String filter) throws FileServerException {
        String what = "put files '" + filter + "' from local directory '" + localDir + "' to remote directory '"
                + remoteDir + "'";
        List<String> names;
        try {
            names = matching(filter, LocalFiles.fileNames(LocalFiles.directory(localDir)));
        } catch (FileServerException e) {
            throw explained(what, e);
        }
        for (FilePair pair : pairs(what, remoteDir, localDir, names)) {
            send(pair);
        }
    }

    /** Creates a directory and its missing parents. Idempotent. */
    public void mkDir(String dir) throws FileServerException {
        String what = "make directory '" + dir + "' on the file server";
        makeDirectory(what, dir, false);
    }

    /**
     * Creates a directory, and its missing parents, for the caller alone: of several clients that try it only
     * one succeeds.
     *
     * @return false when there is something of that name already
     */
    public boolean mkNewDir(String dir) throws FileServerException {
        String what = "make new directory '" + dir + "' on the file server";
        return makeDirectory(what, dir, true);
    }

    /**
     * Removes what interrupted transfers have left in a directory, except what the uploads of some files to it
     * would continue. Nobody else may transfer files into the directory at the time. What the server does not
     * let go stays.
     *
     * @param localFiles the paths of the files that are going to be uploaded in binary mode
     */
    public void removeLeftovers(String dir, List<String> localFiles) throws FileServerException {
        String what = "remove incomplete files in directory '" + dir + "' of the file server";
        try {
            requireConnection();
            RemotePath directory = RemotePath.of(dir);
            if (directory.toString().equals(newest)) {
                return;
            }
            Leftovers leftovers = new Leftovers(transport, directory, resumeFrom);
            for (String localFile : localFiles) {
                leftovers.keepFor(LocalFiles.path(localFile));
            }
            retry.run(what, () -> {
                leftovers.remove();
                return null;
            });
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    /** Writes a small temporary file into the root and removes it: whether the account may. */
    public void probe() throws FileServerException {
        String what = "write and remove a file in the root of the file server";
        try {
            requireConnection();
            Probe probe = new Probe(transport);
            retry.run(what, () -> {
                probe.run();
                return null;
            });
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    /** Whether a file, a directory or anything else exists at the path. */
    public boolean exists(String path) throws FileServerException {
        String what = "tell whether '" + path + "' exists on the file server";
        try {
            requireConnection();
            RemotePath name = RemotePath.of(path);
            return retry.run(what, new Retry.Operation<Transport.Kind>() {
                @Override
                public Transport.Kind run() throws FileServerException {
                    return transport.kind(name);
                }
            }) != Transport.Kind.ABSENT;
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    /** The names of all entries of a directory, sorted. */
    public String[] list(String dir) throws FileServerException {
        String what = "list directory '" + dir + "' of the file server";
        try {
            requireConnection();
            List<String> names = new ArrayList<>();
            for (String name : listing(what, RemotePath.of(dir)).keySet()) {
                names.add(RemotePath.checkFileName(name));
            }
            return names.toArray(new String[0]);
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    /** The URL of the file server. */
    @Override
    public String toString() {
        return url;
    }

    private void fetch(FilePair pair) throws FileServerException {
        String what = fetching(pair.remote, pair.local);
        try {
            requireConnection();
            new Download(transport, mode, largestFile).run(what, retry, pair.remote, pair.local);
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    private void send(FilePair pair) throws FileServerException {
        String what = sending(pair.local, pair.remote);
        try {
            requireConnection();
            new Upload(transport, mode, resumeFrom, pair.local, pair.remote).run(what, retry);
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    private static List<FilePair> pairs(String what, String remoteDir, String localDir, Collection<String> names)
            throws FileServerException {
        try {
            return FilePair.of(remoteDir, localDir, names);
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    private boolean makeDirectory(String what, String dir, boolean asNew) throws FileServerException {
        try {
            requireConnection();
            RemotePath directory = RemotePath.of(dir);
            Directories directories = new Directories(transport);
            boolean created = retry.run(what, new Retry.Operation<Boolean>() {
                @Override
                public Boolean run() throws FileServerException {
                    return asNew ? directories.makeNew(directory) : directories.make(directory);
                }
            });
            if (created) {
                newest = directory.toString();
            }
            return created;
        } catch (FileServerException e) {
            throw explained(what, e);
        }
    }

    private Map<String, Transport.Kind> listing(String what, RemotePath directory) throws FileServerException {
        Map<String, Transport.Kind> entries = retry.run(what, () -> transport.list(directory));
        entries.keySet().removeIf(TemporaryName::matches);
        return entries;
    }

    private Collection<String> remoteFileNames(String what, RemotePath directory) throws FileServerException {
        Map<String, Transport.Kind> entries = listing(what, directory);
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

    private static String fetching(Object remote, Object local) {
        return "get remote file '" + remote + "' to local file '" + local + "'";
    }

    private static String sending(Object local, Object remote) {
        return "put local file '" + local + "' to remote file '" + remote + "'";
    }

    private void requireConnection() throws FileServerException {
        if (!connected) {
            throw new FileServerException("not connected to " + url);
        }
    }

    private static FileServerException explained(String what, FileServerException reason) {
        return new FileServerException("Cannot " + what + ": " + reason.getMessage(), reason);
    }
}
