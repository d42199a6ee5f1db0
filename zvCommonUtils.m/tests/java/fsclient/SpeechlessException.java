package com.vantorel.ep.products.fsclient;

import java.io.PrintWriter;

/** Fails when it is asked what is wrong. */
final class SpeechlessException extends RuntimeException {
    private static final long serialVersionUID = 1L;

    @Override
    public String getMessage() {
        throw new IllegalStateException("no message");
    }

    @Override
    public void printStackTrace(PrintWriter writer) {
        throw new IllegalStateException("no stack trace");
    }
}
