package com.vantorel.ep.products.fsclient;

/** A failure for which a retry over a new connection may succeed. */
final class BrokenConnectionException extends FileServerException {
    private static final long serialVersionUID = 1L;

    BrokenConnectionException(String message) {
        super(message);
    }
}
