package com.vantorel.ep.products.fsclient;

import java.io.FilterInputStream;
import java.io.IOException;
import java.io.InputStream;

/** A stream of which a single byte is read as an array of one, so that a subclass overrides one method only. */
abstract class BulkInput extends FilterInputStream {
    BulkInput(InputStream in) {
        super(in);
    }

    @Override
    public final int read() throws IOException {
        byte[] one = new byte[1];
        return read(one, 0, 1) < 0 ? -1 : one[0] & 0xff;
    }

    @Override
    public abstract int read(byte[] bytes, int offset, int length) throws IOException;
}
