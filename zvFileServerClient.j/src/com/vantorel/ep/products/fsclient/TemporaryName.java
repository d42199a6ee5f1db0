package com.vantorel.ep.products.fsclient;

import java.nio.charset.StandardCharsets;
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
        return create(UUID.randomUUID(), "part");
    }

    /** The name for an incomplete file that may be continued: always the same for a transfer. */
    static String forResuming(String transfer) {
        return create(UUID.nameUUIDFromBytes(transfer.getBytes(StandardCharsets.UTF_8)), "part");
    }

    /** A new name for a file that is being replaced. */
    static String forReplaced() {
        return create(UUID.randomUUID(), "old");
    }

    /** Whether a file name is that of a temporary file. */
    static boolean matches(String fileName) {
        return PATTERN.matcher(fileName).matches();
    }

    private static String create(UUID id, String ending) {
        return ".zv-" + id.toString().replace("-", "") + "." + ending;
    }
}
