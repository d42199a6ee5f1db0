package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.channels.SeekableByteChannel;
import java.nio.file.Path;

/** A local text file, whose line ends are counted while it is read. */
final class TextSource extends LocalSource {
    private long lineFeeds;
    private long pairs;
    private byte last;

    /**
     * @throws FileServerException when it is not a regular file that can be read
     */
    static TextSource open(Path file) throws FileServerException {
        return new TextSource(file, channel(file, 0));
    }

    private TextSource(Path file, SeekableByteChannel channel) throws FileServerException {
        super(file, channel, 0);
    }

    @Override
    public int read(byte[] bytes, int start, int length) throws IOException {
        int read = super.read(bytes, start, length);
        for (int i = start; i < start + read; ++i) {
            if (bytes[i] == '\n') {
                ++lineFeeds;
                pairs += last == '\r' ? 1 : 0;
            }
            last = bytes[i];
        }
        return read;
    }

    /** The size that what was read has with all line ends converted to LF or to CR LF. */
    long sizeWith(LineEnds lineEnds) {
        return position() - pairs + (lineEnds == LineEnds.CRLF ? lineFeeds : 0);
    }
}
