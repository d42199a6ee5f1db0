package com.vantorel.ep.products.fsclient;

import java.util.ArrayDeque;
import java.util.Deque;

/** Creates directories on the file server. */
final class Directories {
    private final Transport transport;
    private boolean unanswered;

    Directories(Transport transport) {
        this.transport = transport;
    }

    /**
     * Creates a directory and its missing parents. Idempotent.
     *
     * @return whether this call has created the directory
     */
    boolean make(RemotePath directory) throws FileServerException {
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
        boolean created = false;
        while (!missing.isEmpty()) {
            created = makeUnlessThere(missing.pop());
        }
        return created;
    }

    /**
     * Creates a directory, which only one client can do, and its missing parents.
     *
     * @return false when there is something of that name
     * @throws FileServerException also when a connection broke before the server's answer and the directory
     *     now exists: nobody can tell who has created it. So an object creates one directory only
     */
    boolean makeNew(RemotePath directory) throws FileServerException {
        if (directory.isRoot()) {
            return false;
        }
        make(directory.parent());
        try {
            transport.makeDirectory(directory);
            return true;
        } catch (BrokenConnectionException e) {
            unanswered = true;
            throw e;
        } catch (FileServerException e) {
            if (transport.kind(directory) == Transport.Kind.ABSENT) {
                throw e;
            }
            if (unanswered) {
                throw new FileServerException("the connection broke while '" + directory
                        + "' was being made, and now it exists: it is not known whether this client has made it", e);
            }
            return false;
        }
    }

    private boolean makeUnlessThere(RemotePath directory) throws FileServerException {
        try {
            transport.makeDirectory(directory);
            return true;
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            // Another process may have won the race.
            if (transport.kind(directory) != Transport.Kind.DIRECTORY) {
                throw e;
            }
            return false;
        }
    }
}
