package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.io.Reader;
import java.io.StringReader;
import java.nio.charset.CharacterCodingException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Properties;
import java.util.TreeSet;

/**
 * A properties file in UTF-8, over the file of the same name in this package, which lists every key with its default.
 * Each failure names the file, the key and the reason.
 */
final class PropertyFile {
    private final Path file;
    private final Properties properties;

    /**
     * Reads a file.
     *
     * @throws FileServerException when it cannot be read, or holds a key that does not exist
     */
    PropertyFile(Path file) throws FileServerException {
        this.file = file;
        Properties defaults = new Properties();
        this.properties = new Properties(defaults);
        try (InputStream in = PropertyFile.class.getResourceAsStream("fileserver.properties")) {
            defaults.load(new InputStreamReader(in, StandardCharsets.UTF_8));
            properties.load(text(file));
        } catch (CharacterCodingException e) {
            throw new FileServerException("'" + file + "' is not written in UTF-8", e);
        } catch (IllegalArgumentException e) {
            throw new FileServerException("'" + file + "' holds a wrong escape", e);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
        for (String key : properties.stringPropertyNames()) {
            if (!defaults.containsKey(key)) {
                throw failure(key, "there is no such key (the keys are "
                        + String.join(", ", new TreeSet<>(defaults.stringPropertyNames())) + ")");
            }
        }
    }

    private static Reader text(Path file) throws IOException {
        String text = Files.readString(file);
        return new StringReader(text.startsWith("\uFEFF") ? text.substring(1) : text);
    }

    /** The file's own path. */
    Path file() {
        return file;
    }

    /** The value of a key as it stands; empty when neither the file nor the defaults give one. */
    String exactly(String key) {
        return properties.getProperty(key);
    }

    /** The value of a key without blanks around it. */
    String text(String key) {
        return exactly(key).trim();
    }

    /** A value that goes to the server within a command, and so may not end it. */
    String word(String key, String value) throws FileServerException {
        if (value.chars().anyMatch(Character::isISOControl)) {
            throw failure(key, "it holds a control character");
        }
        return value;
    }

    /** A whole number from 0 up. */
    int number(String key, int highest) throws FileServerException {
        String value = text(key);
        if (!value.matches("[0-9]{1,9}") || Integer.parseInt(value) > highest) {
            throw failure(key, "'" + value + "' is not a whole number from 0 to " + highest);
        }
        return Integer.parseInt(value);
    }

    /** One of a few words; the answer is its position. */
    int choice(String key, String... words) throws FileServerException {
        for (int i = 0; i < words.length; ++i) {
            if (words[i].equals(text(key))) {
                return i;
            }
        }
        throw failure(key, "'" + text(key) + "' is none of " + String.join(", ", words));
    }

    /** Some of a few words, with commas between them. */
    String[] words(String key, String... words) throws FileServerException {
        String[] chosen = text(key).split(" *, *");
        if (!Arrays.asList(words).containsAll(Arrays.asList(chosen))) {
            throw failure(key, "'" + text(key) + "' is not made of " + String.join(", ", words));
        }
        return chosen;
    }

    /** True or false. */
    boolean flag(String key) throws FileServerException {
        return choice(key, "true", "false") == 0;
    }

    /** A failure in the value of a key. */
    FileServerException failure(String key, String reason) {
        return new FileServerException("'" + file + "', key '" + key + "': " + reason);
    }
}
