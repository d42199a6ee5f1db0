package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.channels.Channels;
import java.nio.channels.SeekableByteChannel;
import java.nio.file.Files;
import java.nio.file.Path;

/**
 * An input stream of a local file, from an offset, that counts bytes and throws {@link FileServerException}s,
 * which distinguishes its failures from those of the network.
 */
class LocalSource extends BulkInput {
    private final long offset;
    private final Progress progress;
    private long position;

    /**
     * @param offset the number of bytes to skip
     * @throws FileServerException when it is not a regular file that can be read
     */
    static LocalSource open(Path file, long offset) throws FileServerException {
        return new LocalSource(file, channel(file, offset), offset);
    }

    LocalSource(Path file, SeekableByteChannel channel, long offset) throws FileServerException {
        super(Channels.newInputStream(channel));
        this.offset = offset;
        this.position = offset;
        this.progress = new Progress(file, size(channel));
    }

    static SeekableByteChannel channel(Path file, long offset) throws FileServerException {
        if (Files.exists(file) && !Files.isRegularFile(file)) {
            throw new FileServerException("'" + file + "' is not a regular file");
        }
        try {
            return Files.newByteChannel(file).position(offset);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    private static long size(SeekableByteChannel channel) throws FileServerException {
        try {
            return channel.size();
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    /** Where it began in the file. */
    final long offset() {
        return offset;
    }

    /** Where it is in the file. */
    final long position() {
        return position;
    }

    @Override
    public int read(byte[] bytes, int start, int length) throws IOException {
        Notices.throwIfCancelled();
        try {
            int read = in.read(bytes, start, length);
            position += Math.max(read, 0);
            progress.reached(position);
            return read;
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public final boolean markSupported() {
        return false;
    }
}
