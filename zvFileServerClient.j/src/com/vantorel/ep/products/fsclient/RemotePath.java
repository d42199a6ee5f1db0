package com.vantorel.ep.products.fsclient;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/**
 * A validated path on the file server, always in or below the configured root.
 *
 * <p>{@code /} and {@code \} are both separators. The path is relative to the root, even with a leading
 * separator; the empty path, {@code .} and {@code /} are the root itself.
 */
final class RemotePath {
    /** The root of the file server. */
    static final RemotePath ROOT = new RemotePath(Collections.emptyList());

    private final List<String> components;

    private RemotePath(List<String> components) {
        this.components = components;
    }

    /**
     * Validates a path from the caller.
     *
     * @throws FileServerException when it could escape the root or is not portable between servers
     */
    static RemotePath of(String name) throws FileServerException {
        if (name == null) {
            throw new FileServerException("no remote name given");
        }
        List<String> components = new ArrayList<>();
        for (String component : name.replace('\\', '/').split("/")) {
            if (!component.isEmpty() && !component.equals(".")) {
                components.add(checkComponent(component, name));
            }
        }
        if (!components.isEmpty() && beginsWithDrive(components.get(0))) {
            throw new FileServerException(
                    "the name '" + name + "' leads out of the file server's root: it begins with a drive");
        }
        return new RemotePath(components);
    }

    /**
     * Validates a bare file name, from a list or from a server's listing.
     *
     * @return the name
     * @throws FileServerException when it is empty, contains a separator or is {@code .} or {@code ..}
     */
    static String checkFileName(String name) throws FileServerException {
        if (name == null || name.isEmpty()) {
            throw new FileServerException("an empty file name is refused");
        }
        if (name.indexOf('/') >= 0 || name.indexOf('\\') >= 0) {
            throw new FileServerException("the file name '" + printable(name) + "' is refused: it contains a separator");
        }
        return checkComponent(name, name);
    }

    private static String checkComponent(String component, String whole) throws FileServerException {
        // A line end in a name would inject an FTP command.
        if (Texts.hasControl(component)) {
            throw new FileServerException(
                    "the name '" + printable(whole) + "' is refused: it contains a control character");
        }
        // Some systems strip trailing dots and blanks, so that ".. " and "..." become "..".
        if (component.replace('.', ' ').trim().isEmpty()) {
            throw new FileServerException("the name '" + printable(whole)
                    + "' is refused: a part of nothing but dots or blanks may lead out of the file server's root");
        }
        return component;
    }

    private static boolean beginsWithDrive(String component) {
        char first = component.charAt(0);
        boolean isLetter = first >= 'A' && first <= 'Z' || first >= 'a' && first <= 'z';
        return isLetter && component.startsWith(":", 1);
    }

    private static String printable(String name) {
        return name.replaceAll("\\p{Cntrl}", "?");
    }

    boolean isRoot() {
        return components.isEmpty();
    }

    /** The components from the root down. */
    List<String> components() {
        return components;
    }

    /** The last component. Precondition: not the root. */
    String fileName() {
        return components.get(components.size() - 1);
    }

    /** The parent directory. Precondition: not the root. */
    RemotePath parent() {
        return new RemotePath(components.subList(0, components.size() - 1));
    }

    /**
     * A file of this directory.
     *
     * @throws FileServerException when the name is not a bare file name
     */
    RemotePath child(String name) throws FileServerException {
        List<String> longer = new ArrayList<>(components);
        longer.add(checkFileName(name));
        return new RemotePath(longer);
    }

    /** The components joined by {@code /}, without a leading one. */
    @Override
    public String toString() {
        return String.join("/", components);
    }
}
