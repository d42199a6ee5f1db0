package com.vantorel.ep.products.fsclient;

/** The server does not continue a file that arrived in part; it can be sent from the start. */
final class ResumeRefusedException extends FileServerException {
    private static final long serialVersionUID = 1L;

    ResumeRefusedException(String message) {
        super(message);
    }
}
