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
 * An output stream to a local file that counts bytes, limits the size and throws {@link
 * FileServerException}s, which distinguishes its failures from those of the network.
 */
final class LocalTarget extends OutputStream {
    private final FileChannel channel;
    private final Limit limit;
    private final Progress progress;
    private long count;

    /** The number of bytes that may be written, and the failure of one more. */
    static final class Limit {
        final long bytes;
        final FileServerException failure;

        Limit(long bytes, FileServerException failure) {
            this.bytes = bytes;
            this.failure = failure;
        }
    }

    /**
     * Creates or truncates the file. A symlink is refused.
     *
     * @param progress is told how many bytes have arrived
     */
    static LocalTarget create(Path file, Limit limit, Progress progress) throws FileServerException {
        try {
            return new LocalTarget(FileChannel.open(file, Set.of(StandardOpenOption.CREATE, StandardOpenOption.WRITE,
                    StandardOpenOption.TRUNCATE_EXISTING, LinkOption.NOFOLLOW_LINKS)), limit, progress);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private LocalTarget(FileChannel channel, Limit limit, Progress progress) {
        this.channel = channel;
        this.limit = limit;
        this.progress = progress;
    }

    /** The number of bytes written. */
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
        if (count > limit.bytes) {
            throw limit.failure;
        }
        try {
            ByteBuffer buffer = ByteBuffer.wrap(bytes, offset, length);
            while (buffer.hasRemaining()) {
                channel.write(buffer);
            }
            progress.reached(count);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    /** Flushes the file to disk, before it is renamed and its source may be deleted. */
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
