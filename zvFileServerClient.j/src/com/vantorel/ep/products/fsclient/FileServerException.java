package com.vantorel.ep.products.fsclient;

import java.io.IOException;

/**
 * Thrown by every operation of the file-server client. The message says what was attempted, with the names of
 * the files, and why it failed. It never contains a password.
 */
public class FileServerException extends IOException {
    private static final long serialVersionUID = 1L;

    FileServerException(String message) {
        super(Masking.maskedMessage(message));
    }

    FileServerException(String message, Throwable cause) {
        super(Masking.maskedMessage(message), cause);
    }
}
