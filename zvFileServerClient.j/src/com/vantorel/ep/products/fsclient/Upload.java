package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.file.Path;

/**
 * Uploads one file atomically: it is uploaded to a temporary file in the target's directory, checked for its
 * size, and only then renamed to the target. One object uploads one file.
 *
 * <p>A large binary file that was cut off is continued, by the next attempt or a later process: its temporary
 * file has a name that says whose it is, and stays when the connection breaks for good.
 */
final class Upload {
    private final Transport transport;
    private final TransferMode mode;
    private final Path source;
    private final RemotePath target;
    private final RemotePath temporary;
    private final RemotePath replaced;
    /** What is sent, if it can be continued; otherwise null. */
    private final SourceVersion resumable;
    private boolean sending;
    private boolean replacing;

    /**
     * @param resumeFrom the size in bytes above which a binary file is continued
     * @throws FileServerException when the target is the root, which is not a file, or there is no source
     */
    Upload(Transport transport, TransferMode mode, long resumeFrom, Path source, RemotePath target)
            throws FileServerException {
        if (target.isRoot()) {
            throw new FileServerException("the remote name names no file");
        }
        this.transport = transport;
        this.mode = mode;
        this.source = source;
        this.target = target;
        SourceVersion version = SourceVersion.of(source);
        this.resumable = mode == TransferMode.BINARY && version.size() > resumeFrom ? version : null;
        String name = resumable == null ? TemporaryName.forArriving() : resumable.partName(target);
        this.temporary = target.parent().child(name);
        this.replaced = target.parent().child(TemporaryName.forReplaced());
    }

    /** Uploads the file. An existing target is replaced; on failure it is unchanged. */
    void run(String what, Retry retry) throws FileServerException {
        try {
            retry.run(what, new Retry.Operation<Void>() {
                @Override
                public Void run() throws FileServerException {
                    send();
                    takeName();
                    return null;
                }
            });
        } catch (FileServerException e) {
            if (replacing) {
                quietly(this::restore);
            }
            boolean isCutOff = e.getCause() instanceof BrokenConnectionException || e instanceof CancelledException;
            boolean later = resumable != null && isCutOff;
            if (sending && !later) {
                quietly(() -> transport.delete(temporary));
            }
            throw e;
        }
        if (replacing) {
            quietly(() -> transport.delete(replaced));
        }
    }

    private void send() throws FileServerException {
        long arrived = resumable == null ? 0 : arrivedBefore();
        if (arrived == 0 || !sendRest(arrived)) {
            String difference = sendFrom(0);
            if (difference != null) {
                throw new BrokenConnectionException(difference);
            }
        }
    }

    /** The size of what an earlier attempt has left on the server and can be continued. */
    private long arrivedBefore() throws FileServerException {
        if (!resumable.isCurrent() || transport.kind(temporary) != Transport.Kind.FILE) {
            return 0;
        }
        long size = transport.size(temporary);
        return size == Transport.UNKNOWN_SIZE || size > resumable.size() ? 0 : size;
    }

    /** Returns false when the file has to be sent from the start. */
    private boolean sendRest(long arrived) throws FileServerException {
        String difference;
        try {
            Notices.tell("'" + target + "' is continued: " + arrived + " of " + resumable.size()
                    + " bytes have arrived before");
            difference = sendFrom(arrived);
        } catch (ResumeRefusedException e) {
            difference = e.getMessage();
        }
        if (difference != null) {
            Notices.tell("'" + target + "' is sent from the start, since it could not be continued: " + difference);
        }
        return difference == null;
    }

    /** Returns what is wrong with the size of what has arrived, or null. */
    private String sendFrom(long offset) throws FileServerException {
        try (LocalSource content = open(offset)) {
            sending = true;
            transport.send(content, mode, temporary);
            long arrived = transport.size(temporary);
            if (arrived == Transport.UNKNOWN_SIZE) {
                return null;
            }
            if (content instanceof TextSource) {
                tellLineEnds((TextSource) content, arrived);
                return null;
            }
            return arrived == content.position() ? null : arrived + " of " + content.position() + " bytes arrived";
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private LocalSource open(long offset) throws FileServerException {
        return mode == TransferMode.ASCII ? TextSource.open(source) : LocalSource.open(source, offset);
    }

    /** The server may ignore ASCII mode; then the line ends are those of the connection. */
    private void tellLineEnds(TextSource text, long arrived) throws FileServerException {
        LineEnds expected = transport.lineEnds();
        boolean isLf = arrived == text.sizeWith(LineEnds.LF);
        boolean isCrlf = arrived == text.sizeWith(LineEnds.CRLF);
        if (expected == LineEnds.LF ? isLf : expected == LineEnds.CRLF ? isCrlf : isLf || isCrlf) {
            return;
        }
        if (isLf || isCrlf) {
            Notices.tell("'" + target + "' arrived with " + (isLf ? LineEnds.LF : LineEnds.CRLF)
                    + " line ends, but those of the server's system are " + expected
                    + ": the server does not convert in ASCII mode");
        } else {
            Notices.tell("'" + target + "' arrived with line ends that are neither LF nor CR LF throughout: "
                    + arrived + " bytes");
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
            transport.beginAttempt();
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
