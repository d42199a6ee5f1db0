package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.file.Path;

/**
 * Uploads one file atomically: it is uploaded to a temporary file in the target's directory, checked for its
 * size, and only then renamed to the target. One object uploads one file.
 */
final class Upload {
    private final Transport transport;
    private final Retry retry;
    private final TransferMode mode;
    private final Path source;
    private final RemotePath target;
    private final RemotePath temporary;
    private final RemotePath replaced;
    private boolean sending;
    private boolean replacing;

    /**
     * @throws FileServerException when the target is the root, which is not a file
     */
    Upload(Transport transport, Retry retry, TransferMode mode, Path source, RemotePath target)
            throws FileServerException {
        if (target.isRoot()) {
            throw new FileServerException("the remote name names no file");
        }
        this.transport = transport;
        this.retry = retry;
        this.mode = mode;
        this.source = source;
        this.target = target;
        this.temporary = target.parent().child(TemporaryName.forArriving());
        this.replaced = target.parent().child(TemporaryName.forReplaced());
    }

    /** Uploads the file. An existing target is replaced; on failure it is unchanged. */
    void run() throws FileServerException {
        try {
            retry.run(() -> {
                send();
                takeName();
                return null;
            });
        } catch (FileServerException e) {
            if (replacing) {
                quietly(this::restore);
            }
            if (sending) {
                quietly(() -> transport.delete(temporary));
            }
            throw e;
        }
        if (replacing) {
            quietly(() -> transport.delete(replaced));
        }
    }

    private void send() throws FileServerException {
        try (LocalSource content = LocalSource.open(source)) {
            sending = true;
            transport.send(content, mode, temporary);
            if (mode == TransferMode.BINARY) {
                compare(content.count(), transport.size(temporary));
            }
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private static void compare(long sent, long arrived) throws BrokenConnectionException {
        if (arrived != Transport.UNKNOWN_SIZE && arrived != sent) {
            throw new BrokenConnectionException(arrived + " of " + sent + " bytes arrived");
        }
    }

    private void takeName() throws FileServerException {
        try {
            transport.rename(temporary, target);
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            takeNameOfExisting(e);
        }
    }

    /** For servers that do not rename over an existing file: it is renamed first, and restored on failure. */
    private void takeNameOfExisting(FileServerException refusal) throws FileServerException {
        Transport.Kind existing = transport.kind(target);
        if (existing == Transport.Kind.DIRECTORY) {
            throw new FileServerException("'" + target + "' is a directory on the file server", refusal);
        } else if (existing != Transport.Kind.FILE) {
            throw refusal;
        }
        // Set first: the rename may succeed even if the connection breaks before the reply.
        replacing = true;
        transport.rename(target, replaced);
        transport.rename(temporary, target);
    }

    private void restore() throws FileServerException {
        if (transport.kind(target) == Transport.Kind.ABSENT) {
            transport.rename(replaced, target);
        } else {
            transport.delete(replaced);
        }
    }

    /** Cleans up on the server, best effort: a failure does not change the outcome. */
    private void quietly(Step step) {
        try {
            transport.connect();
            step.run();
        } catch (FileServerException e) {
            transport.disconnect();
        }
    }

    private interface Step {
        void run() throws FileServerException;
    }
}
