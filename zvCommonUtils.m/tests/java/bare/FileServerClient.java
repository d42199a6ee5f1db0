package com.vantorel.ep.products.fsclient;

/** A test double of a client that has nothing but what every client has. */
public final class FileServerClient extends ListedOperations {}
