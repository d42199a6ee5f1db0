package com.vantorel.ep.products.fsclient;

import java.io.IOException;
import java.nio.charset.CharacterCodingException;
import java.nio.file.Files;
import java.nio.file.Path;

/**
 * Secrets that a configuration names as <code>${secret:NAME}</code> instead of containing them. They come from
 * the program, as the system property {@code zv.secret.NAME}, or from the file NAME in the directory that the
 * environment variable {@code CREDENTIALS_DIRECTORY} names, as service managers provide it.
 */
final class Secrets {
    private static final String BEGINNING = "${secret:";
    private static final String END = "}";

    private Secrets() {}

    /** Whether a value is a reference to a secret. */
    static boolean isReference(String value) {
        return value.startsWith(BEGINNING) && value.endsWith(END);
    }

    /**
     * The secret that a reference names.
     *
     * @throws FileServerException when it is nowhere, naming it
     */
    static String resolve(String reference) throws FileServerException {
        String name = reference.substring(BEGINNING.length(), reference.length() - END.length());
        String given = System.getProperty("zv.secret." + name);
        return given != null ? given : read(name);
    }

    private static String read(String name) throws FileServerException {
        String directory = System.getenv("CREDENTIALS_DIRECTORY");
        if (directory == null || directory.isEmpty()) {
            throw new FileServerException("the secret '" + name
                    + "' was not given, and the environment variable CREDENTIALS_DIRECTORY is not set");
        }
        try {
            Path file = LocalFiles.child(LocalFiles.path(directory), name);
            return withoutLineEnd(Files.readString(file));
        } catch (CharacterCodingException e) {
            throw new FileServerException("the secret '" + name + "' is not written in UTF-8", e);
        } catch (IOException e) {
            throw new FileServerException("the secret '" + name + "' was not given, and cannot be read: "
                    + LocalFiles.failure(e).getMessage(), e);
        }
    }

    /** Editors end a file with a line end, which is no part of the secret. */
    private static String withoutLineEnd(String text) {
        int end = text.length();
        end -= text.endsWith("\n") ? 1 : 0;
        end -= end > 0 && end < text.length() && text.charAt(end - 1) == '\r' ? 1 : 0;
        return text.substring(0, end);
    }
}
