package com.vantorel.ep.products.fsclient;

import java.util.UUID;
import java.util.regex.Pattern;

/**
 * Names for files that are on their way: {@code .zv-}, 32 hexadecimal digits, and {@code .part} for one that is still
 * arriving or {@code .old} for one that is being replaced. No listing or filter shows them. They do not hold the
 * target's name, which may already be as long as the file system allows.
 */
final class TemporaryName {
    private static final Pattern PATTERN = Pattern.compile("\\.zv-[0-9a-f]{32}\\.(part|old)");

    private TemporaryName() {}

    /** A new name for a file that is arriving. */
    static String forArriving() {
        return create("part");
    }

    /** A new name for a file that is being replaced. */
    static String forReplaced() {
        return create("old");
    }

    /** Whether a file name is one of these. */
    static boolean matches(String fileName) {
        return PATTERN.matcher(fileName).matches();
    }

    private static String create(String ending) {
        return ".zv-" + UUID.randomUUID().toString().replace("-", "") + "." + ending;
    }
}
