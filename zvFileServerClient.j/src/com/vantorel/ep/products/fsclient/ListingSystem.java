package com.vantorel.ep.products.fsclient;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.util.List;
import java.util.Locale;
import org.apache.commons.net.ftp.FTPClientConfig;
import org.apache.commons.net.ftp.FTPFile;
import org.apache.commons.net.ftp.FTPFileEntryParser;
import org.apache.commons.net.ftp.parser.DefaultFTPFileEntryParserFactory;
import org.apache.commons.net.ftp.parser.FTPFileEntryParserFactory;

/**
 * Makes the parser of listings, which is one of a few, by what a server says of its system. Left to itself, the
 * library would load any class that the server names.
 */
final class ListingSystem implements FTPFileEntryParserFactory {
    /** The work for a line grows with more than its length, and no file name needs so many characters. */
    private static final int LONGEST_LINE = 1000;
    private static final String[] SYSTEMS = {FTPClientConfig.SYST_UNIX, FTPClientConfig.SYST_VMS,
            FTPClientConfig.SYST_NT, FTPClientConfig.SYST_OS2, FTPClientConfig.SYST_OS400, FTPClientConfig.SYST_AS400,
            FTPClientConfig.SYST_MVS, FTPClientConfig.SYST_NETWARE, FTPClientConfig.SYST_MACOS_PETER};

    private final FTPFileEntryParserFactory parsers = new DefaultFTPFileEntryParserFactory();
    private final TimeLimits limits;

    ListingSystem(TimeLimits limits) {
        this.limits = limits;
    }

    /** The system, one of a few, of a server that gives this answer to SYST; Unix if it is none of them. */
    static String named(String answer) {
        String upper = answer.toUpperCase(Locale.ROOT);
        for (String system : SYSTEMS) {
            if (upper.contains(system)) {
                return system;
            }
        }
        return FTPClientConfig.SYST_UNIX;
    }

    @Override
    public FTPFileEntryParser createFileEntryParser(String system) {
        return new Parser(parsers.createFileEntryParser(named(system)));
    }

    @Override
    public FTPFileEntryParser createFileEntryParser(FTPClientConfig config) {
        return createFileEntryParser(config.getServerSystemKey());
    }

    /** Leaves lines out that are too long, and ends with the operation's time. */
    private final class Parser implements FTPFileEntryParser {
        private final FTPFileEntryParser parser;

        Parser(FTPFileEntryParser parser) {
            this.parser = parser;
        }

        @Override
        public FTPFile parseFTPEntry(String line) {
            try {
                limits.checkTotal();
            } catch (BrokenConnectionException e) {
                throw new UncheckedIOException(e);
            }
            return line.length() > LONGEST_LINE ? null : parser.parseFTPEntry(line);
        }

        @Override
        public String readNextEntry(BufferedReader reader) throws IOException {
            return parser.readNextEntry(reader);
        }

        @Override
        public List<String> preParse(List<String> lines) {
            return parser.preParse(lines);
        }
    }
}
