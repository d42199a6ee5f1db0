package com.vantorel.ep.products.fsclient;

import java.nio.file.Path;

/** How far the transfer of one file is, told to the program some times a second at most. */
final class Progress {
    /** The nanoseconds between two that are told. */
    static long interval = 200_000_000;

    private final Path file;
    private final long total;
    private long told = System.nanoTime();

    /**
     * @param file the local file
     * @param total its size, or {@link Transport#UNKNOWN_SIZE}
     */
    Progress(Path file, long total) {
        this.file = file;
        this.total = total;
    }

    /** So many bytes of the file have been moved, those included that had arrived before. */
    void reached(long bytes) {
        long now = System.nanoTime();
        if (now - told >= interval) {
            told = now;
            Notices.tellProgress(file.toString(), bytes, total);
        }
    }
}
