package com.vantorel.ep.products.fsclient;

/** The program that loaded this client wants the operation to end. */
final class CancelledException extends FileServerException {
    private static final long serialVersionUID = 1L;

    CancelledException() {
        super("the program is asked to end");
    }
}
