package com.vantorel.ep.products.fsclient;

import java.util.Locale;

/** The line ends of a system. */
enum LineEnds {
    LF("LF"),
    CRLF("CR LF"),
    UNKNOWN("unknown");

    private final String text;

    LineEnds(String text) {
        this.text = text;
    }

    /** Those of this host. */
    static LineEnds ofThisHost() {
        return System.lineSeparator().equals("\r\n") ? CRLF : LF;
    }

    /** Those of the system that an FTP server names in its answer to SYST. */
    static LineEnds ofSystem(String name) {
        String system = name.trim().toUpperCase(Locale.ROOT);
        if (system.startsWith("WINDOWS") || system.startsWith("WIN32")) {
            return CRLF;
        }
        // Servers on other systems say "UNIX emulated by ...".
        return system.startsWith("UNIX") && !system.contains("EMULATED") ? LF : UNKNOWN;
    }

    @Override
    public String toString() {
        return text;
    }
}
