package com.vantorel.ep.products.fsclient;

import java.io.IOException;

/**
 * What every operation of the file-server client throws. The message says what was attempted, with the names of the
 * files, and why it failed. It never holds a password.
 */
public class FileServerException extends IOException {
    private static final long serialVersionUID = 1L;

    FileServerException(String message) {
        super(message);
    }

    FileServerException(String message, Throwable cause) {
        super(message, cause);
    }
}
