package com.vantorel.ep.products.fsclient;

import java.io.BufferedInputStream;
import java.io.BufferedOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import org.apache.commons.net.io.FromNetASCIIInputStream;
import org.apache.commons.net.io.ToNetASCIIOutputStream;

/** Text with the line ends of this host. A class of its own, so that binary files do not load the FTP library. */
final class LocalText {
    private LocalText() {}

    static void copy(InputStream source, OutputStream target) throws IOException {
        // The conversion reads a byte at a time.
        InputStream text = new FromNetASCIIInputStream(new BufferedInputStream(source));
        if (LineEnds.ofThisHost() == LineEnds.LF) {
            text.transferTo(target);
            return;
        }
        // On this system, CRLF is kept and a bare LF becomes CRLF.
        BufferedOutputStream buffer = new BufferedOutputStream(target);
        text.transferTo(new ToNetASCIIOutputStream(buffer));
        buffer.flush();
    }
}
