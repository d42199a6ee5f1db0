package com.vantorel.ep.products.fsclient;

import java.io.OutputStream;
import java.util.Set;
import java.util.SortedMap;

/**
 * A protocol for access to the file server. Operations are elementary and not retried; a failure for which a
 * retry over a new connection may succeed is a {@link BrokenConnectionException} and leaves the transport
 * disconnected. Messages contain only the reason: callers add what was attempted.
 */
interface Transport {
    /** The type of an entry on the server. */
    enum Kind { FILE, DIRECTORY, OTHER, ABSENT }

    /** The size of a file if the server does not report it. */
    long UNKNOWN_SIZE = -1;

    /** An attempt of an operation begins, whose time is limited from now on. */
    default void beginAttempt() {}

    /** Connects and logs in. Idempotent. */
    void connect() throws FileServerException;

    /** Disconnects. Idempotent; never fails. */
    void disconnect();

    /** The type of the entry at a path. */
    Kind kind(RemotePath path) throws FileServerException;

    /** The size of a file in bytes, or {@link #UNKNOWN_SIZE}. */
    long size(RemotePath file) throws FileServerException;

    /**
     * The entries of a directory by name, without the directory itself and its parent. The names come from
     * the server and are not validated.
     */
    SortedMap<String, Kind> list(RemotePath directory) throws FileServerException;

    /** The names of a directory's entries, with those that the server otherwise hides; not validated either. */
    Set<String> listHidden(RemotePath directory) throws FileServerException;

    /** Downloads a file to a stream, which stays open. Exceptions of the stream propagate. */
    void receive(RemotePath source, TransferMode mode, OutputStream target) throws FileServerException;

    /**
     * Uploads a source, which stays open, to a new or overwritten file; from an offset, to the end of a file
     * that has just this size. Exceptions of the source propagate.
     *
     * @throws ResumeRefusedException when the server does not continue files, before anything was sent
     */
    void send(LocalSource source, TransferMode mode, RemotePath target) throws FileServerException;

    /** The line ends that text in ASCII mode has on the server. */
    LineEnds lineEnds() throws FileServerException;

    /** Creates one directory, which must not exist; its parent has to. */
    void makeDirectory(RemotePath directory) throws FileServerException;

    /** Renames a file. It depends on the server whether an existing target is replaced or refused. */
    void rename(RemotePath from, RemotePath to) throws FileServerException;

    /** Deletes a file. */
    void delete(RemotePath file) throws FileServerException;
}
