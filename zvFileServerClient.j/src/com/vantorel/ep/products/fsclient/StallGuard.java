package com.vantorel.ep.products.fsclient;

import org.apache.commons.net.io.CopyStreamAdapter;

/**
 * A watchdog for uploads, since sockets have a time-out for reads but none for writes. It is notified of each
 * chunk written, and closes the connection when there was none for too long, or when nobody wants the upload any
 * longer.
 */
final class StallGuard extends CopyStreamAdapter implements AutoCloseable {
    /** Milliseconds after which it looks whether the upload is still wanted. */
    private static final long LONGEST_SLEEP = 100;
    /** In a millisecond. */
    private static final long NANOSECONDS = 1_000_000;

    private final TimeLimits limits;
    private final Runnable closeConnection;
    private final Thread thread = new Thread(this::watch, "file-server stall guard");
    private volatile FileServerException reason;

    /** Starts the watchdog, which runs until it is closed. */
    StallGuard(TimeLimits limits, Runnable closeConnection) {
        this.limits = limits;
        limits.ask();
        this.closeConnection = closeConnection;
        thread.setDaemon(true);
        thread.start();
    }

    /** Why it closed the connection; null if it did not. */
    FileServerException reason() {
        return reason;
    }

    @Override
    public void bytesTransferred(long total, int count, long size) {
        limits.moved(count);
    }

    /** Ends the watchdog, which asks and closes nothing afterwards. */
    @Override
    public void close() {
        thread.interrupt();
        boolean isInterrupted = false;
        while (thread.isAlive()) {
            try {
                thread.join();
            } catch (InterruptedException e) {
                isInterrupted = true;
            }
        }
        if (isInterrupted) {
            Thread.currentThread().interrupt();
        }
    }

    private void watch() {
        try {
            for (long left = limits.left(); left > 0; left = limits.left()) {
                Notices.throwIfCancelled();
                Thread.sleep(Math.min(left / NANOSECONDS + 1, LONGEST_SLEEP));
            }
            end(limits.takenTooLittle());
        } catch (CancelledException e) {
            end(e);
        } catch (InterruptedException e) {
            // The upload has finished.
            Thread.currentThread().interrupt();
        }
    }

    private void end(FileServerException why) {
        reason = why;
        closeConnection.run();
    }
}
