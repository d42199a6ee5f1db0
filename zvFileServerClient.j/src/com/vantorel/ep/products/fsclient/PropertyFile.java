package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.Reader;
import java.io.StringReader;
import java.nio.charset.CharacterCodingException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Properties;
import java.util.TreeSet;

/**
 * A properties file in UTF-8, with this package's {@code fileserver.properties} as defaults and as the list
 * of valid keys. Each failure names the file, the key and the reason.
 */
final class PropertyFile {
    /** Of a number that is an int in any case. */
    private static final int MOST_DIGITS = 9;

    private final Path file;
    private final Properties defaults = new Properties();
    private final Properties properties = new Properties(defaults);

    /**
     * Parses a file.
     *
     * @throws FileServerException when it cannot be read
     */
    PropertyFile(Path file) throws FileServerException {
        this.file = file;
        for (String[] key : Defaults.KEYS) {
            defaults.setProperty(key[0], key[1]);
        }
        try {
            properties.load(text(file));
        } catch (CharacterCodingException e) {
            throw new FileServerException("'" + file + "' is not written in UTF-8", e);
        } catch (IllegalArgumentException e) {
            throw new FileServerException("'" + file + "' holds a wrong escape", e);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    /** Validates the keys. */
    void requireKnownKeys() throws FileServerException {
        for (String key : properties.stringPropertyNames()) {
            if (!defaults.containsKey(key)) {
                throw failure(key, "there is no such key (the keys are "
                        + String.join(", ", new TreeSet<>(defaults.stringPropertyNames())) + ")");
            }
        }
    }

    /** Sets a key, also an unknown one, back to its default. */
    void reset(String key) {
        properties.remove(key);
    }

    /** Sets a key. */
    void set(String key, String value) {
        properties.setProperty(key, value);
    }

    private static Reader text(Path file) throws IOException {
        String text = Files.readString(file);
        return new StringReader(text.startsWith("\uFEFF") ? text.substring(1) : text);
    }

    /** The file's own path. */
    Path file() {
        return file;
    }

    /** The value of a key, untrimmed; empty when it is not set and has no default. */
    String exactly(String key) {
        return properties.getProperty(key);
    }

    /** The trimmed value of a key. */
    String text(String key) {
        return exactly(key).trim();
    }

    /**
     * The value of a key, untrimmed, or the secret that it refers to.
     *
     * @throws FileServerException when there is no such secret
     */
    String confidential(String key) throws FileServerException {
        String value = exactly(key);
        String reference = value.trim();
        if (!Secrets.isReference(reference)) {
            return value;
        }
        try {
            return Secrets.resolve(reference);
        } catch (FileServerException e) {
            throw failure(key, e.getMessage());
        }
    }

    /** Validates a value that is part of an FTP command: control characters would allow injection. */
    String word(String key, String value) throws FileServerException {
        if (Texts.hasControl(value)) {
            throw failure(key, "it holds a control character");
        }
        return value;
    }

    /** An integer from 0 to {@code highest}. */
    int number(String key, int highest) throws FileServerException {
        String value = text(key);
        boolean isNumber = !value.isEmpty() && value.length() <= MOST_DIGITS && Texts.isMadeOf("0123456789", value);
        if (!isNumber || Integer.parseInt(value) > highest) {
            throw failure(key, "'" + value + "' is not a whole number from 0 to " + highest);
        }
        return Integer.parseInt(value);
    }

    /** One of several words; returns its index. */
    int choice(String key, String... words) throws FileServerException {
        for (int i = 0; i < words.length; ++i) {
            if (words[i].equals(text(key))) {
                return i;
            }
        }
        throw failure(key, "'" + text(key) + "' is none of " + String.join(", ", words));
    }

    /** A comma-separated list of some of the words. */
    String[] words(String key, String... words) throws FileServerException {
        String[] chosen = text(key).split(",");
        for (int i = 0; i < chosen.length; ++i) {
            chosen[i] = chosen[i].trim();
        }
        if (!Arrays.asList(words).containsAll(Arrays.asList(chosen))) {
            throw failure(key, "'" + text(key) + "' is not made of " + String.join(", ", words));
        }
        return chosen;
    }

    /** A boolean, "true" or "false". */
    boolean flag(String key) throws FileServerException {
        return choice(key, "true", "false") == 0;
    }

    /** An exception for an invalid value. */
    FileServerException failure(String key, String reason) {
        return new SettingException(file, key, reason);
    }
}
