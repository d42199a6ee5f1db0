package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;

/** Writes a small file into the root of the file server and removes it again. */
final class Probe {
    private static final byte[] CONTENT = "A probe of a gateway home; to be removed.\n".getBytes(StandardCharsets.US_ASCII);

    private final Transport transport;
    private final RemotePath target;

    Probe(Transport transport) throws FileServerException {
        this.transport = transport;
        this.target = RemotePath.ROOT.child(TemporaryName.forArriving());
    }

    void run() throws FileServerException {
        try {
            send();
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            removeQuietly();
            throw e;
        }
        try {
            transport.delete(target);
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            throw new FileServerException("'" + target + "' cannot be removed: " + e.getMessage(), e);
        }
    }

    /** Another attempt overwrites what an earlier one has left. */
    private void send() throws FileServerException {
        try {
            Path source = Files.createTempFile("zv-probe", null);
            try {
                Files.write(source, CONTENT);
                send(source);
            } finally {
                Files.delete(source);
            }
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private void send(Path source) throws IOException {
        try (LocalSource content = LocalSource.open(source, 0)) {
            transport.send(content, TransferMode.BINARY, target);
        }
        long arrived = transport.size(target);
        if (arrived != Transport.UNKNOWN_SIZE && arrived != CONTENT.length) {
            throw new FileServerException(arrived + " of " + CONTENT.length + " bytes arrived");
        }
    }

    private void removeQuietly() {
        try {
            transport.delete(target);
        } catch (FileServerException e) {
            // The reason why it was not written is worth more.
        }
    }
}
