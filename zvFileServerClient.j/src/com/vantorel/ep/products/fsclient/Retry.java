package com.vantorel.ep.products.fsclient;

import java.time.Duration;
import java.util.concurrent.ThreadLocalRandom;

/** Runs an operation over a transport and retries it over a new connection when the connection breaks. */
final class Retry {
    /** An operation that can be retried from the start. */
    interface Operation<T> {
        T run() throws FileServerException;
    }

    /** Milliseconds after which a pause looks whether it is wanted any longer. */
    private static final long LONGEST_SLEEP = 100;
    /** In a millisecond. */
    private static final long NANOSECONDS = 1_000_000;
    private static final long LONGEST_DELAY = 60_000;
    private static final int MOST_DOUBLINGS = 20;

    private final Transport transport;
    private final int retries;
    private final long delay;

    /**
     * @param retries the number of retries after the first attempt
     * @param delay the back-off before the first retry, see {@link #backOff}
     */
    Retry(Transport transport, int retries, Duration delay) {
        this.transport = transport;
        this.retries = retries;
        this.delay = delay.toMillis();
    }

    /**
     * Connects the transport if necessary and runs an operation. Each retry is told as a notice.
     *
     * @param what the operation, for the notice
     * @throws FileServerException the operation's own failure, or the last broken connection
     */
    <T> T run(String what, Operation<T> operation) throws FileServerException {
        for (int retry = 1;; ++retry) {
            Notices.throwIfCancelled();
            try {
                transport.beginAttempt();
                transport.connect();
                return operation.run();
            } catch (BrokenConnectionException e) {
                transport.disconnect();
                if (retry > retries) {
                    throw new FileServerException(e.getMessage() + attempts(), e);
                }
                long pause = backOff(retry);
                Notices.tell("Cannot " + what + ": " + e.getMessage() + "; retry " + retry + " of " + retries + " in "
                        + Math.round(pause / 100.0) / 10.0 + " s");
                pause(pause);
            }
        }
    }

    /**
     * The milliseconds before a retry, the first of which is 1: doubled for each up to a minute, unless the
     * first delay is longer already. Up to half of it is left to chance, so that clients do not all come back
     * at once.
     */
    long backOff(int retry) {
        long longest = Math.max(LONGEST_DELAY, delay);
        long whole = Math.min(longest, delay << Math.min(retry - 1, MOST_DOUBLINGS));
        return whole - ThreadLocalRandom.current().nextLong(whole / 2 + 1);
    }

    private String attempts() {
        return retries == 0 ? "" : " (after " + (retries + 1) + " attempts)";
    }

    private static void pause(long milliseconds) throws FileServerException {
        long end = System.nanoTime() + milliseconds * NANOSECONDS;
        try {
            for (long left = milliseconds; left > 0; left = (end - System.nanoTime()) / NANOSECONDS) {
                Notices.throwIfCancelled();
                Thread.sleep(Math.min(left, LONGEST_SLEEP));
            }
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
            throw new FileServerException("interrupted while waiting for the next attempt", e);
        }
    }
}
