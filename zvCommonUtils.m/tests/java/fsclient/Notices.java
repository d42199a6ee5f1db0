package com.vantorel.ep.products.fsclient;

/** A test double of the real notices. */
final class Notices {
    private Notices() {}

    static native void receive(String text);
}
