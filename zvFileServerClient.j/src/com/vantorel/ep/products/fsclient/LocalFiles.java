package com.vantorel.ep.products.fsclient;

import java.io.File;
import java.io.IOException;
import java.nio.file.AccessDeniedException;
import java.nio.file.DirectoryIteratorException;
import java.nio.file.DirectoryNotEmptyException;
import java.nio.file.DirectoryStream;
import java.nio.file.FileAlreadyExistsException;
import java.nio.file.FileSystemException;
import java.nio.file.Files;
import java.nio.file.InvalidPathException;
import java.nio.file.NoSuchFileException;
import java.nio.file.NotDirectoryException;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.SortedSet;
import java.util.TreeSet;

/** Operations on this host's file system, with readable failures. */
final class LocalFiles {
    private LocalFiles() {}

    /**
     * The path of a name that the caller gave, which is trusted and not restricted. {@code /} and {@code \} are
     * both separators.
     */
    static Path path(String name) throws FileServerException {
        if (name == null || name.isEmpty()) {
            throw new FileServerException("no local name given");
        }
        return parse(name.replace('\\', File.separatorChar));
    }

    /** An existing directory that the caller named. */
    static Path directory(String name) throws FileServerException {
        Path directory = path(name);
        if (!Files.isDirectory(directory)) {
            throw new FileServerException("there is no local directory '" + name + "'");
        }
        return directory;
    }

    /** A file in a directory. The name is not trusted and cannot escape the directory. */
    static Path child(Path directory, String name) throws FileServerException {
        Path file = parse(RemotePath.checkFileName(name));
        if (file.getRoot() != null || file.getNameCount() != 1) {
            throw new FileServerException("the file name '" + name + "' is refused: it leads out of its directory");
        }
        return directory.resolve(file);
    }

    /** The names of the regular files in a directory. */
    static SortedSet<String> fileNames(Path directory) throws FileServerException {
        SortedSet<String> names = new TreeSet<>();
        try (DirectoryStream<Path> entries = Files.newDirectoryStream(directory)) {
            for (Path entry : entries) {
                if (Files.isRegularFile(entry)) {
                    names.add(entry.getFileName().toString());
                }
            }
        } catch (DirectoryIteratorException e) {
            throw failure(e.getCause());
        } catch (IOException e) {
            throw failure(e);
        }
        return names;
    }

    /** The bytes that can be written to a directory's disk. */
    static long room(Path directory) throws FileServerException {
        try {
            return Files.getFileStore(directory).getUsableSpace();
        } catch (IOException e) {
            throw failure(e);
        }
    }

    /** Converts an exception to one with a readable reason. */
    static FileServerException failure(IOException e) {
        return e instanceof FileServerException ? (FileServerException) e : new FileServerException(reason(e), e);
    }

    private static Path parse(String name) throws FileServerException {
        try {
            return Paths.get(name);
        } catch (InvalidPathException e) {
            throw new FileServerException("'" + name + "' is not a valid file name on this host: " + e.getReason(), e);
        }
    }

    private static String reason(IOException e) {
        if (!(e instanceof FileSystemException)) {
            return e.getMessage() == null ? e.toString() : e.getMessage();
        }
        FileSystemException failure = (FileSystemException) e;
        String file = "'" + failure.getFile() + "'";
        if (failure instanceof NoSuchFileException) {
            return "there is no " + file;
        } else if (failure instanceof AccessDeniedException) {
            return "access to " + file + " is denied";
        } else if (failure instanceof FileAlreadyExistsException) {
            return file + " exists already";
        } else if (failure instanceof NotDirectoryException) {
            return file + " is not a directory";
        } else if (failure instanceof DirectoryNotEmptyException) {
            return file + " is a directory";
        }
        return failure.getReason() == null ? failure.toString() : file + ": " + failure.getReason();
    }
}
