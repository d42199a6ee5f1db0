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

    Download(Transport transport, TransferMode mode) {
        this.transport = transport;
        this.mode = mode;
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
        try (LocalTarget arriving = LocalTarget.create(temporary, expected, progress)) {
            transport.receive(source, mode, arriving);
            if (expected != Transport.UNKNOWN_SIZE && arriving.count() != expected) {
                throw new BrokenConnectionException(arriving.count() + " of " + expected + " bytes arrived");
            }
            arriving.force();
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private static void remove(Path temporary) {
        try {
            Files.deleteIfExists(temporary);
        } catch (IOException e) {
            // The original failure is more important; the name identifies the leftover as a temporary file.
        }
    }
}
