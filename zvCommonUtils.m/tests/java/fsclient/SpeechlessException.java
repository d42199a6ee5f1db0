package com.vantorel.ep.products.fsclient;

import java.io.PrintWriter;

/** An exception whose own methods throw. */
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
