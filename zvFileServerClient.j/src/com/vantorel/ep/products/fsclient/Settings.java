package com.vantorel.ep.products.fsclient;

import java.net.URI;
import java.net.URISyntaxException;
import java.nio.charset.Charset;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.time.Duration;
import java.util.LinkedHashMap;
import java.util.Map;

/**
 * The client's validated configuration. The keys and their defaults are described in this package's {@code
 * fileserver.properties}.
 */
final class Settings {
    private static final int IMPLICIT_FTPS_PORT = 990;
    private static final int FTP_PORT = 21;
    private static final int ONE_DAY = 24 * 60 * 60;
    private static final long MEBIBYTE = 1 << 20;
    /** In MiB. */
    private static final int LARGEST_FILE = 1_000_000;
    private static final int FASTEST_SLOWEST_RATE = 1_000_000;
    /** In place of one that cannot be used. */
    private static final String HARMLESS_URL = "ftp://localhost";

    /** The URL schemes. */
    enum Scheme { FILE, FTP, FTPS }

    final Scheme scheme;
    /** The URL for messages; contains no password. */
    final String url;
    /** The root directory; with {@link Scheme#FILE} only. */
    final Path directory;
    final String host;
    final int port;
    /** The root, absolute or relative to the login directory; empty for the login directory itself. */
    final String serverPath;
    final String user;
    private final boolean userIsSecret;
    final String password;
    final Duration connectTimeout;
    final Duration timeout;
    /** In bytes a second. */
    final long slowestRate;
    final Duration operationTimeout;
    final int retries;
    final Duration retryDelay;
    /** The size in bytes above which an upload that was cut off is continued. */
    final long resumeFrom;
    /** The size in bytes of the largest file that is fetched. */
    final long largestFile;
    final boolean passive;
    final Charset encoding;
    final boolean implicit;
    final String[] protocols;
    /** A PEM file, or null for Java's default trust store. */
    final Path certificates;
    final boolean checkHost;

    /**
     * Parses a configuration file.
     *
     * @throws FileServerException naming the file, the key and the reason
     */
    static Settings read(Path file) throws FileServerException {
        return new Settings(new PropertyFile(file));
    }

    /**
     * Everything that is wrong with a configuration file: the reason by the key. After each fault the file is
     * read again with the key's default.
     *
     * @throws FileServerException when it cannot be read
     */
    static Map<String, String> faults(Path file) throws FileServerException {
        Map<String, String> faults = new LinkedHashMap<>();
        PropertyFile properties = new PropertyFile(file);
        for (;;) {
            try {
                requireCertificates(properties, new Settings(properties).certificates);
                return faults;
            } catch (SettingException e) {
                if (faults.put(e.key, e.reason) != null) {
                    throw e;
                }
                properties.reset(e.key);
                if (e.key.equals("url")) {
                    properties.set("url", HARMLESS_URL);
                }
            }
        }
    }

    private static void requireCertificates(PropertyFile file, Path certificates) throws FileServerException {
        if (certificates != null) {
            try {
                TlsContext.trusting(certificates);
            } catch (FileServerException e) {
                throw file.failure("ftps-certificates", e.getMessage());
            }
        }
    }

    private Settings(PropertyFile file) throws FileServerException {
        file.requireKnownKeys();
        implicit = file.choice("ftps-mode", "explicit", "implicit") == 1;
        url = file.text("url");
        URI uri = uri(file, url);
        scheme = scheme(file, uri);
        if (scheme == Scheme.FILE) {
            directory = directory(file, uri);
            host = null;
            port = 0;
            serverPath = null;
        } else {
            directory = null;
            host = host(file, uri);
            int usualPort = implicit && scheme == Scheme.FTPS ? IMPLICIT_FTPS_PORT : FTP_PORT;
            port = uri.getPort() >= 0 ? uri.getPort() : usualPort;
            serverPath = file.word("url", uri.getPath().isEmpty() ? "" : uri.getPath().substring(1));
        }
        encoding = encoding(file);
        user = file.word("user", file.confidential("user").trim());
        userIsSecret = Secrets.isReference(file.text("user"));
        password = password(file);
        Masking.add(password, encoding);
        if (userIsSecret) {
            Masking.add(user, encoding);
        }
        connectTimeout = seconds(file, "connect-timeout", 1);
        timeout = seconds(file, "timeout", 1);
        slowestRate = file.number("slowest-rate", FASTEST_SLOWEST_RATE);
        operationTimeout = seconds(file, "operation-timeout", 1);
        retries = file.number("retries", 1000);
        retryDelay = seconds(file, "retry-delay", 0);
        resumeFrom = file.number("resume-from", LARGEST_FILE) * MEBIBYTE;
        largestFile = file.number("largest-file", LARGEST_FILE) * MEBIBYTE;
        passive = file.flag("passive");
        protocols = file.words("ftps-protocols", "TLSv1.2", "TLSv1.3");
        certificates = certificates(file);
        checkHost = file.flag("ftps-check-host");
    }

    /** The user for a message. */
    String shownUser() {
        return userIsSecret ? Masking.MASK : user;
    }

    /** Whether it names no host, before which an account could stand. */
    private static boolean isFolder(String url) {
        String scheme = "file:/";
        return url.regionMatches(true, 0, scheme, 0, scheme.length())
                && (url.startsWith("//", scheme.length()) || !url.startsWith("/", scheme.length()));
    }

    private static URI uri(PropertyFile file, String url) throws FileServerException {
        if (url.isEmpty()) {
            throw file.failure("url", "it is missing");
        }
        if (url.indexOf('@') >= 0 && !isFolder(url)) {
            throw file.failure("url",
                    "an account belongs in the keys user and password, and an @ in the path is written %40");
        }
        try {
            return new URI(url);
        } catch (URISyntaxException e) {
            throw file.failure("url", "'" + url + "' is not a url: " + e.getReason());
        }
    }

    private static Scheme scheme(PropertyFile file, URI uri) throws FileServerException {
        for (Scheme scheme : Scheme.values()) {
            if (scheme.name().equalsIgnoreCase(uri.getScheme())) {
                return scheme;
            }
        }
        throw file.failure("url", "the scheme of '" + uri + "' is none of file, ftp, ftps");
    }

    private static Path directory(PropertyFile file, URI uri) throws FileServerException {
        try {
            return Paths.get(uri);
        } catch (IllegalArgumentException e) {
            throw file.failure("url", "'" + uri + "' names no directory of this host: " + e.getMessage());
        }
    }

    private static String host(PropertyFile file, URI uri) throws FileServerException {
        if (uri.getHost() == null) {
            throw file.failure("url", "'" + uri + "' names no host");
        }
        if (uri.getPort() > 65535) {
            throw file.failure("url", "'" + uri + "' has a port above 65535");
        }
        if (uri.getQuery() != null || uri.getFragment() != null) {
            throw file.failure("url", "'" + uri + "' has a ? or # (write %3F or %23)");
        }
        // Only in a URL, an IPv6 address is in brackets.
        return uri.getHost().replace("[", "").replace("]", "");
    }

    private static String password(PropertyFile file) throws FileServerException {
        String password = file.confidential("password");
        String variable = file.text("password-env");
        if (variable.isEmpty()) {
            return file.word("password", password);
        }
        if (!password.isEmpty()) {
            throw file.failure("password-env", "there is a password too");
        }
        password = System.getenv(variable);
        if (password == null) {
            throw file.failure("password-env", "there is no environment variable '" + variable + "'");
        }
        return file.word("password-env", password);
    }

    private static Duration seconds(PropertyFile file, String key, int lowest) throws FileServerException {
        int seconds = file.number(key, ONE_DAY);
        if (seconds < lowest) {
            throw file.failure(key, "it must be at least " + lowest);
        }
        return Duration.ofSeconds(seconds);
    }

    private static Charset encoding(PropertyFile file) throws FileServerException {
        try {
            return Charset.forName(file.text("encoding"));
        } catch (IllegalArgumentException e) {
            throw file.failure("encoding", "'" + file.text("encoding") + "' is not known");
        }
    }

    private static Path certificates(PropertyFile file) throws FileServerException {
        String name = file.text("ftps-certificates");
        if (name.isEmpty()) {
            return null;
        }
        try {
            return file.file().toAbsolutePath().resolveSibling(name);
        } catch (IllegalArgumentException e) {
            throw file.failure("ftps-certificates", "'" + name + "' is no file name on this host");
        }
    }
}
