package com.vantorel.ep.products.fsclient;

/**
 * How long a server is waited for: the pace at which bytes have to move, and the time that an operation may take
 * in total, without the contents of files. One object is used by one client, and asked by its watchdog as well.
 */
final class TimeLimits {
    private static final long SECOND = 1_000_000_000;
    /** In nanoseconds, after which it looks whether the answer is still wanted. */
    private static final long LONGEST_PAUSE = 100_000_000;

    private final long stall;
    private final long slowest;
    private final long total;
    private long second;
    private long bytesInSecond;
    private volatile long lastPace;
    private long end;
    private long fileBegin;
    private long lastQuestion = System.nanoTime();

    TimeLimits(Settings settings) {
        stall = settings.timeout.toNanos();
        slowest = settings.slowestRate;
        total = settings.operationTimeout.toNanos();
    }

    /** An attempt of an operation begins. */
    void begin() {
        fileBegin = 0;
        end = System.nanoTime() + total;
    }

    /** The server is asked for something. */
    void ask() {
        second = System.nanoTime();
        bytesInSecond = 0;
        lastPace = second;
    }

    /** The content of a file begins, which takes as long as it takes. */
    void beginFile() {
        fileBegin = System.nanoTime();
    }

    /** It has ended. */
    void endFile() {
        end += System.nanoTime() - fileBegin;
        fileBegin = 0;
    }

    /** Bytes have moved: the pace is kept by a second in which there were enough. */
    void moved(long bytes) {
        long now = System.nanoTime();
        if (now - second > SECOND) {
            second = now;
            bytesInSecond = 0;
        }
        bytesInSecond += bytes;
        if (bytesInSecond >= slowest) {
            lastPace = now;
        }
    }

    /** The nanoseconds until the server counts as stalled. */
    long left() {
        return stall - (System.nanoTime() - lastPace);
    }

    /** Of a server that stalls while it takes a file. */
    BrokenConnectionException takenTooLittle() {
        String little = slowest > 1 ? "less than " + slowest + " bytes a second" : "nothing";
        return new BrokenConnectionException("the server took " + little + " for " + stall / SECOND + " seconds");
    }

    /** Fails when the server gives too little or too late, or nobody wants it any longer. */
    void check() throws FileServerException {
        long now = System.nanoTime();
        if (now - lastQuestion > LONGEST_PAUSE) {
            lastQuestion = now;
            Notices.throwIfCancelled();
        }
        if (left() < 0) {
            throw new BrokenConnectionException("the server gave less than " + slowest + " bytes a second for "
                    + stall / SECOND + " seconds");
        }
        checkTotal();
    }

    /** Fails when the operation's time is over. */
    void checkTotal() throws BrokenConnectionException {
        if (fileBegin == 0 && System.nanoTime() - end > 0) {
            throw new BrokenConnectionException("the server took more than the " + total / SECOND
                    + " seconds of operation-timeout");
        }
    }
}
