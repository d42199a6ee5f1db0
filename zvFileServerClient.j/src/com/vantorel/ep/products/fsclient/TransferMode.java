package com.vantorel.ep.products.fsclient;

/** How the bytes of a file travel. */
enum TransferMode {
    /** Unchanged. */
    BINARY,
    /** As text: the file arrives with the line ends of the system that receives it. */
    ASCII;

    /**
     * Finds the mode with a numeric code.
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
