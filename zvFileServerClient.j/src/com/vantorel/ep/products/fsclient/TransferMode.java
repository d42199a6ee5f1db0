package com.vantorel.ep.products.fsclient;

/** The transfer mode of a file. */
enum TransferMode {
    /** Unchanged. */
    BINARY,
    /** As text: line ends are converted to those of the receiving system. */
    ASCII;

    /**
     * The mode with a numeric code.
     *
     * @param code 0 for binary, 1 for ASCII
     * @throws FileServerException for any other code
     */
    static TransferMode ofCode(int code) throws FileServerException {
        if (code < 0 || code >= values().length) {
            throw new FileServerException("there is no such mode (0 is binary, 1 is ASCII)");
        }
        return values()[code];
    }
}
