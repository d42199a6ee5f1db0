package com.vantorel.ep.products.fsclient;

import java.time.Duration;

/** Runs an operation over a transport, and runs it again over a new connection when the connection broke. */
final class Retry {
    /** An operation that can be repeated from its beginning. */
    interface Operation<T> {
        T run() throws FileServerException;
    }

    private final Transport transport;
    private final int retries;
    private final Duration delay;

    /**
     * @param retries how often to try again after the first attempt
     * @param delay how long to wait before each
     */
    Retry(Transport transport, int retries, Duration delay) {
        this.transport = transport;
        this.retries = retries;
        this.delay = delay;
    }

    /**
     * Runs an operation with the transport connected.
     *
     * @throws FileServerException the operation's own failure, or the last broken connection
     */
    <T> T run(Operation<T> operation) throws FileServerException {
        for (int left = retries;; --left) {
            try {
                transport.connect();
                return operation.run();
            } catch (BrokenConnectionException e) {
                transport.disconnect();
                if (left <= 0) {
                    throw new FileServerException(e.getMessage() + attempts(), e);
                }
                pause();
            }
        }
    }

    private String attempts() {
        return retries == 0 ? "" : " (after " + (retries + 1) + " attempts)";
    }

    private void pause() throws FileServerException {
        try {
            Thread.sleep(delay.toMillis());
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
            throw new FileServerException("interrupted while waiting for the next attempt", e);
        }
    }
}
