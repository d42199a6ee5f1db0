package com.vantorel.ep.products.fsclient;

import java.time.Duration;

/** Runs an operation over a transport and retries it over a new connection when the connection breaks. */
final class Retry {
    /** An operation that can be retried from the start. */
    interface Operation<T> {
        T run() throws FileServerException;
    }

    private final Transport transport;
    private final int retries;
    private final Duration delay;

    /**
     * @param retries the number of retries after the first attempt
     * @param delay the back-off before each retry
     */
    Retry(Transport transport, int retries, Duration delay) {
        this.transport = transport;
        this.retries = retries;
        this.delay = delay;
    }

    /**
     * Connects the transport if necessary and runs an operation.
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
