package com.vantorel.ep.products.fsclient;

import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/**
 * A checked name on the file server. It always lies in or below the configured root, and this is the one place that
 * sees to it.
 *
 * <p>Both {@code /} and {@code \} separate. The name is taken from the root, whether it begins with a separator or not;
 * the empty name, {@code .} and {@code /} are the root itself.
 */
final class RemotePath {
    /** The root of the file server. */
    static final RemotePath ROOT = new RemotePath(Collections.emptyList());

    private final List<String> components;

    private RemotePath(List<String> components) {
        this.components = components;
    }

    /**
     * Checks a name that came from the caller.
     *
     * @throws FileServerException when it could lead out of the root, or is no name that every server can keep
     */
    static RemotePath of(String name) throws FileServerException {
        if (name == null) {
            throw new FileServerException("no remote name given");
        }
        List<String> components = new ArrayList<>();
        for (String component : name.split("[/\\\\]")) {
            if (!component.isEmpty() && !component.equals(".")) {
                components.add(checkComponent(component, name));
            }
        }
        if (!components.isEmpty() && components.get(0).matches("[A-Za-z]:.*")) {
            throw new FileServerException(
                    "the name '" + name + "' leads out of the file server's root: it begins with a drive");
        }
        return new RemotePath(components);
    }

    /**
     * Checks that a name, from a list or a server's listing, names a file of the directory at hand and nothing else.
     *
     * @return the name
     * @throws FileServerException when it is empty, holds a separator or leads elsewhere
     */
    static String checkFileName(String name) throws FileServerException {
        if (name == null || name.isEmpty()) {
            throw new FileServerException("an empty file name is refused");
        }
        if (name.indexOf('/') >= 0 || name.indexOf('\\') >= 0) {
            throw new FileServerException("the file name '" + printable(name) + "' is refused: it holds a separator");
        }
        return checkComponent(name, name);
    }

    private static String checkComponent(String component, String whole) throws FileServerException {
        // Some systems drop dots and blanks at the end of a name, so that ".. " and "..." become "..".
        if (component.chars().allMatch(c -> c == '.' || c == ' ')) {
            throw new FileServerException("the name '" + printable(whole)
                    + "' is refused: a part of nothing but dots or blanks may lead out of the file server's root");
        }
        // A line end in a name would be a second command to an FTP server.
        if (component.chars().anyMatch(Character::isISOControl)) {
            throw new FileServerException(
                    "the name '" + printable(whole) + "' is refused: it holds a control character");
        }
        return component;
    }

    private static String printable(String name) {
        return name.replaceAll("\\p{Cntrl}", "?");
    }

    boolean isRoot() {
        return components.isEmpty();
    }

    /** The names from the root down. */
    List<String> components() {
        return components;
    }

    /** The last name; the root has none. */
    String fileName() {
        return components.get(components.size() - 1);
    }

    /** The directory that holds this; the root has none. */
    RemotePath parent() {
        return new RemotePath(components.subList(0, components.size() - 1));
    }

    /**
     * A file of this directory.
     *
     * @throws FileServerException when the name is not that of a file in it
     */
    RemotePath child(String name) throws FileServerException {
        List<String> longer = new ArrayList<>(components);
        longer.add(checkFileName(name));
        return new RemotePath(longer);
    }

    /** The name with {@code /} between the components and none in front. */
    @Override
    public String toString() {
        return String.join("/", components);
    }
}
