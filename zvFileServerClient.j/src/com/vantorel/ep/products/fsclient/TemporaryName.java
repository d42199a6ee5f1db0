package com.vantorel.ep.products.fsclient;

import java.nio.charset.StandardCharsets;
import java.util.UUID;
import java.util.concurrent.ThreadLocalRandom;

/**
 * Names of temporary files: {@code .zv-}, 32 hexadecimal digits, and {@code .part} for an incomplete file or
 * {@code .old} for one that is being replaced. They are hidden from listings and filters. They do not contain
 * the target's name, which may already have the maximum length.
 */
final class TemporaryName {
    private static final String PREFIX = ".zv-";
    private static final String ARRIVING = ".part";
    private static final String REPLACED = ".old";
    private static final int DIGITS = 32;
    private static final int DIGITS_OF_LONG = 16;

    private TemporaryName() {}

    /** A new name for an incomplete file. */
    static String forArriving() {
        return create(ARRIVING);
    }

    /** The name for an incomplete file that may be continued: always the same for a transfer. */
    static String forResuming(String transfer) {
        UUID id = UUID.nameUUIDFromBytes(transfer.getBytes(StandardCharsets.UTF_8));
        return PREFIX + id.toString().replace("-", "") + ARRIVING;
    }

    /** A new name for a file that is being replaced. */
    static String forReplaced() {
        return create(REPLACED);
    }

    /** Whether a file name is that of a temporary file. */
    static boolean matches(String fileName) {
        int end = PREFIX.length() + DIGITS;
        return fileName.length() > end && fileName.startsWith(PREFIX)
                && (fileName.startsWith(ARRIVING, end) && fileName.length() == end + ARRIVING.length()
                        || fileName.startsWith(REPLACED, end) && fileName.length() == end + REPLACED.length())
                && Texts.isMadeOf("0123456789abcdef", fileName.substring(PREFIX.length(), end));
    }

    /** Made of chance and the clock. No secure source: none is needed, and it takes ten milliseconds to set up. */
    private static String create(String ending) {
        return PREFIX + digits(ThreadLocalRandom.current().nextLong()) + digits(System.nanoTime()) + ending;
    }

    private static String digits(long number) {
        String digits = Long.toHexString(number);
        return "0".repeat(DIGITS_OF_LONG - digits.length()) + digits;
    }
}
