package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;

/**
 * Downloads one file atomically: it is written to a temporary file in the target's directory, checked for its
 * size, and only then renamed over the target.
 */
final class Download {
    private final Transport transport;
    private final TransferMode mode;
    private final long largestFile;

    /**
     * @param largestFile the size in bytes above which a file is refused
     */
    Download(Transport transport, TransferMode mode, long largestFile) {
        this.transport = transport;
        this.mode = mode;
        this.largestFile = largestFile;
    }

    /**
     * Downloads the file. An existing target is replaced; on failure it is unchanged.
     */
    void run(String what, Retry retry, RemotePath source, Path target) throws FileServerException {
        if (Files.exists(target) && !Files.isRegularFile(target)) {
            throw new FileServerException("'" + target + "' is not a regular file");
        }
        LocalFiles.directory(target.toAbsolutePath().getParent().toString());
        Path temporary = target.resolveSibling(TemporaryName.forArriving());
        try {
            retry.run(what, () -> {
                receive(source, temporary, target);
                return null;
            });
            Files.move(temporary, target, StandardCopyOption.ATOMIC_MOVE, StandardCopyOption.REPLACE_EXISTING);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        } finally {
            remove(temporary);
        }
    }

    private void receive(RemotePath source, Path temporary, Path target) throws FileServerException {
        // In ASCII mode, the conversion of line ends may change the size.
        long expected = mode == TransferMode.BINARY ? transport.size(source) : Transport.UNKNOWN_SIZE;
        Progress progress = new Progress(target, expected);
        LocalTarget.Limit limit = limit(expected, temporary);
        try (LocalTarget arriving = LocalTarget.create(temporary, limit, progress)) {
            transport.receive(source, mode, arriving);
            if (expected != Transport.UNKNOWN_SIZE && arriving.count() != expected) {
                throw new BrokenConnectionException(arriving.count() + " of " + expected + " bytes arrived");
            }
            arriving.force();
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    /** A file of unknown size leaves a tenth of the room, lest others have none. */
    private LocalTarget.Limit limit(long expected, Path temporary) throws FileServerException {
        long room = LocalFiles.room(temporary.toAbsolutePath().getParent());
        if (expected > largestFile) {
            throw new FileServerException("it has " + expected + " bytes, and largest-file is " + largestFile);
        }
        if (expected > room) {
            throw new FileServerException("it has " + expected + " bytes, and there is room for " + room);
        }
        if (expected != Transport.UNKNOWN_SIZE) {
            return new LocalTarget.Limit(expected,
                    new BrokenConnectionException("more than the announced " + expected + " bytes arrived"));
        }
        long most = Math.min(largestFile, room - room / 10);
        String reason = most == largestFile ? "bytes of largest-file arrived" : "bytes arrived for which there is room";
        return new LocalTarget.Limit(most, new FileServerException("more than the " + most + " " + reason));
    }

    private static void remove(Path temporary) {
        try {
            Files.deleteIfExists(temporary);
        } catch (IOException e) {
            // The original failure is more important; the name identifies the leftover as a temporary file.
        }
    }
}
