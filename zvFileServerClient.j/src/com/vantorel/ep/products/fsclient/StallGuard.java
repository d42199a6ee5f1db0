package com.vantorel.ep.products.fsclient;

import java.time.Duration;
import org.apache.commons.net.io.CopyStreamAdapter;

/**
 * A watchdog for stalled uploads, since sockets have a time-out for reads but none for writes. It is notified
 * of each chunk written, and closes the connection when there was none for too long.
 */
final class StallGuard extends CopyStreamAdapter implements AutoCloseable {
    private final long limit;
    private final Runnable closeConnection;
    private final Thread thread = new Thread(this::watch, "file-server stall guard");
    private volatile long lastProgress = System.nanoTime();
    private volatile boolean stalled;

    /** Starts the watchdog, which runs until it is closed. */
    StallGuard(Duration limit, Runnable closeConnection) {
        this.limit = limit.toNanos();
        this.closeConnection = closeConnection;
        thread.setDaemon(true);
        thread.start();
    }

    /** Whether the upload stalled and the connection was closed. */
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
            // The upload has finished.
            Thread.currentThread().interrupt();
        }
    }
}
