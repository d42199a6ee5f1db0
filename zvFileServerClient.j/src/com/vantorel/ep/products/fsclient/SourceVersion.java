package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.net.InetAddress;
import java.net.UnknownHostException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.attribute.BasicFileAttributes;
import java.nio.file.attribute.FileTime;

/** A local file with its present content, as far as size and time of last change tell. */
final class SourceVersion {
    private final Path file;
    private final long size;
    private final FileTime changed;

    static SourceVersion of(Path file) throws FileServerException {
        try {
            BasicFileAttributes attributes = Files.readAttributes(file, BasicFileAttributes.class);
            return new SourceVersion(file.toAbsolutePath(), attributes.size(), attributes.lastModifiedTime());
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private SourceVersion(Path file, long size, FileTime changed) {
        this.file = file;
        this.size = size;
        this.changed = changed;
    }

    /** The file's size in bytes. */
    long size() {
        return size;
    }

    /** Whether the file has not changed since. */
    boolean isCurrent() throws FileServerException {
        SourceVersion now = of(file);
        return now.size == size && now.changed.equals(changed);
    }

    /** The name of the incomplete file on the server, which a later process on this host finds again. */
    String partName(RemotePath target) {
        return TemporaryName.forResuming(String.join("\0", target.toString(), thisHost(), file.toString(),
                Long.toString(size), changed.toString()));
    }

    private static String thisHost() {
        try {
            return InetAddress.getLocalHost().getHostName();
        } catch (UnknownHostException e) {
            return "";
        }
    }
}
