package com.vantorel.ep.products.fsclient;

import java.util.UUID;
import java.util.regex.Pattern;

/**
 * Names of temporary files: {@code .zv-}, 32 hexadecimal digits, and {@code .part} for an incomplete file or
 * {@code .old} for one that is being replaced. They are hidden from listings and filters. They do not contain
 * the target's name, which may already have the maximum length.
 */
final class TemporaryName {
    private static final Pattern PATTERN = Pattern.compile("\\.zv-[0-9a-f]{32}\\.(part|old)");

    private TemporaryName() {}

    /** A new name for an incomplete file. */
    static String forArriving() {
        return create("part");
    }

    /** A new name for a file that is being replaced. */
    static String forReplaced() {
        return create("old");
    }

    /** Whether a file name is that of a temporary file. */
    static boolean matches(String fileName) {
        return PATTERN.matcher(fileName).matches();
    }

    private static String create(String ending) {
        return ".zv-" + UUID.randomUUID().toString().replace("-", "") + "." + ending;
    }
}
