package com.vantorel.ep.products.fsclient;

/** A failure that another attempt over a new connection may overcome. */
final class BrokenConnectionException extends FileServerException {
    private static final long serialVersionUID = 1L;

    BrokenConnectionException(String message) {
        super(message);
    }
}
