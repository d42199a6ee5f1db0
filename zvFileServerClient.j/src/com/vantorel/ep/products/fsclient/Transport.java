package com.vantorel.ep.products.fsclient;

import java.io.InputStream;
import java.io.OutputStream;
import java.util.SortedMap;

/**
 * One way of reaching the file server. Each operation does one thing on the server, once; a failure that a new
 * connection may overcome is a {@link BrokenConnectionException} and leaves the transport disconnected. The messages
 * tell the reason only: whoever calls adds what was attempted.
 */
interface Transport {
    /** What a name on the server stands for. */
    enum Kind { FILE, DIRECTORY, OTHER, ABSENT }

    /** The size of a file whose server does not tell it. */
    long UNKNOWN_SIZE = -1;

    /** Connects and logs in. Does nothing when that is already so. */
    void connect() throws FileServerException;

    /** Ends the connection, if there is one. Never fails. */
    void disconnect();

    /** What stands under a name. */
    Kind kind(RemotePath path) throws FileServerException;

    /** The size of a file in bytes, or {@link #UNKNOWN_SIZE}. */
    long size(RemotePath file) throws FileServerException;

    /**
     * Everything in a directory, by name, without the directory itself and its parent. The names are as the server
     * tells them: not checked.
     */
    SortedMap<String, Kind> list(RemotePath directory) throws FileServerException;

    /** Writes a file's content to a stream, which stays open. A failure of the stream itself passes through. */
    void receive(RemotePath source, TransferMode mode, OutputStream target) throws FileServerException;

    /** Makes a file, or writes it anew, from a stream, which stays open. A failure of the stream passes through. */
    void send(InputStream source, TransferMode mode, RemotePath target) throws FileServerException;

    /** Makes one directory in an existing one. */
    void makeDirectory(RemotePath directory) throws FileServerException;

    /** Renames a file. Whether an existing target is replaced or refused is the server's choice. */
    void rename(RemotePath from, RemotePath to) throws FileServerException;

    /** Removes a file. */
    void delete(RemotePath file) throws FileServerException;
}
