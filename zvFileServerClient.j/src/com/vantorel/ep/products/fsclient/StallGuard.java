package com.vantorel.ep.products.fsclient;

import java.time.Duration;
import org.apache.commons.net.io.CopyStreamAdapter;

/**
 * Ends an upload on which nothing moves any more: a socket has a time limit for reading but none for writing. It is
 * told of each piece that was written, and closes the connection when none was for too long.
 */
final class StallGuard extends CopyStreamAdapter implements AutoCloseable {
    private final long limit;
    private final Runnable closeConnection;
    private final Thread thread = new Thread(this::watch, "file-server stall guard");
    private volatile long lastProgress = System.nanoTime();
    private volatile boolean stalled;

    /** Starts watching, until closed. */
    StallGuard(Duration limit, Runnable closeConnection) {
        this.limit = limit.toNanos();
        this.closeConnection = closeConnection;
        thread.setDaemon(true);
        thread.start();
    }

    /** Whether it has closed the connection. */
    boolean stalled() {
        return stalled;
    }

    @Override
    public void bytesTransferred(long total, int count, long size) {
        lastProgress = System.nanoTime();
    }

    @Override
    public void close() {
        thread.interrupt();
    }

    private void watch() {
        try {
            for (long left = limit; left > 0; left = limit - (System.nanoTime() - lastProgress)) {
                Thread.sleep(left / 1_000_000 + 1);
            }
            stalled = true;
            closeConnection.run();
        } catch (InterruptedException e) {
            // The upload is over.
            Thread.currentThread().interrupt();
        }
    }
}
