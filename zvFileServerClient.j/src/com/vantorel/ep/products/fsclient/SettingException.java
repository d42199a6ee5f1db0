package com.vantorel.ep.products.fsclient;

/** Thrown for the value of one key of a configuration file. */
final class SettingException extends FileServerException {
    private static final long serialVersionUID = 1L;

    final String key;
    /** The message without the file and the key. */
    final String reason;

    SettingException(Object file, String key, String reason) {
        super("'" + file + "', key '" + key + "': " + reason);
        this.key = key;
        this.reason = Masking.maskedMessage(reason);
    }
}
