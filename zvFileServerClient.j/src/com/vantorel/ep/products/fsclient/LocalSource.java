package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;

/**
 * An input stream of a local file that counts bytes and throws {@link FileServerException}s, which
 * distinguishes its failures from those of the network.
 */
final class LocalSource extends BulkInput {
    private long count;

    /**
     * @throws FileServerException when it is not a regular file that can be read
     */
    static LocalSource open(Path file) throws FileServerException {
        if (Files.exists(file) && !Files.isRegularFile(file)) {
            throw new FileServerException("'" + file + "' is not a regular file");
        }
        try {
            return new LocalSource(file);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private LocalSource(Path file) throws IOException {
        super(Files.newInputStream(file));
    }

    /** The number of bytes read. */
    long count() {
        return count;
    }

    @Override
    public int read(byte[] bytes, int offset, int length) throws IOException {
        try {
            int read = in.read(bytes, offset, length);
            count += Math.max(read, 0);
            return read;
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public boolean markSupported() {
        return false;
    }
}
