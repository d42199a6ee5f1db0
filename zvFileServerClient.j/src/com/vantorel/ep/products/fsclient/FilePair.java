package com.vantorel.ep.products.fsclient;

import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Collection;
import java.util.List;

/** A file on the file server and its counterpart on this host. */
final class FilePair {
    final RemotePath remote;
    final Path local;

    private FilePair(RemotePath remote, Path local) {
        this.remote = remote;
        this.local = local;
    }

    /** A pair from names that the caller gave. */
    static FilePair of(String remote, String local) throws FileServerException {
        return new FilePair(RemotePath.of(remote), LocalFiles.path(local));
    }

    /**
     * Files of the same name in two directories.
     *
     * @param localDir an existing directory
     * @throws FileServerException when any of the names would escape the directories
     */
    static List<FilePair> of(String remoteDir, String localDir, Collection<String> names) throws FileServerException {
        if (names == null) {
            throw new FileServerException("no list of files given");
        }
        RemotePath remote = RemotePath.of(remoteDir);
        Path local = LocalFiles.directory(localDir);
        List<FilePair> pairs = new ArrayList<>();
        for (String name : names) {
            pairs.add(new FilePair(remote.child(name), LocalFiles.child(local, name)));
        }
        return pairs;
    }
}
