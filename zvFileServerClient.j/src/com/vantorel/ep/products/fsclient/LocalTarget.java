package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.OutputStream;
import java.nio.ByteBuffer;
import java.nio.channels.FileChannel;
import java.nio.file.LinkOption;
import java.nio.file.Path;
import java.nio.file.StandardOpenOption;
import java.util.Set;

/**
 * A local file being written, from its beginning. It counts, takes no more than was announced, and its failures are
 * {@link FileServerException}s, which tells them from those of the network.
 */
final class LocalTarget extends OutputStream {
    private final FileChannel channel;
    private final long limit;
    private long count;

    /**
     * Creates the file, or empties it. A symbolic link in its place is refused.
     *
     * @param limit how many bytes are expected at most, or {@link Transport#UNKNOWN_SIZE}
     */
    static LocalTarget create(Path file, long limit) throws FileServerException {
        try {
            return new LocalTarget(FileChannel.open(file, Set.of(StandardOpenOption.CREATE, StandardOpenOption.WRITE,
                    StandardOpenOption.TRUNCATE_EXISTING, LinkOption.NOFOLLOW_LINKS)), limit);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private LocalTarget(FileChannel channel, long limit) {
        this.channel = channel;
        this.limit = limit;
    }

    /** How many bytes have been written. */
    long count() {
        return count;
    }

    @Override
    public void write(int b) throws IOException {
        write(new byte[] {(byte) b}, 0, 1);
    }

    @Override
    public void write(byte[] bytes, int offset, int length) throws IOException {
        count += length;
        if (limit != Transport.UNKNOWN_SIZE && count > limit) {
            throw new BrokenConnectionException("more than the announced " + limit + " bytes arrived");
        }
        try {
            ByteBuffer buffer = ByteBuffer.wrap(bytes, offset, length);
            while (buffer.hasRemaining()) {
                channel.write(buffer);
            }
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    /** Brings what was written to the disk: the file takes its name, and its source may be removed, only then. */
    void force() throws FileServerException {
        try {
            channel.force(false);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public void close() throws IOException {
        channel.close();
    }
}
