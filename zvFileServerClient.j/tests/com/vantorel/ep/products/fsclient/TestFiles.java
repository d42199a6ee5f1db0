package com.vantorel.ep.products.fsclient;

import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.channels.FileChannel;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.SortedMap;
import java.util.TreeMap;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.function.ThrowingRunnable;

/** Test helpers for directories and expected failures. */
final class TestFiles {
    private TestFiles() {}

    /** Creates files with their name as content. */
    static void fill(Path directory, String... names) throws IOException {
        for (String name : names) {
            Files.writeString(directory.resolve(name), name);
        }
    }

    /** The regular files below a directory with their content, unless it is long. */
    static SortedMap<String, String> tree(Path directory) throws IOException {
        try (Stream<Path> files = Files.walk(directory)) {
            SortedMap<String, String> contents = new TreeMap<>();
            for (Path file : files.filter(Files::isRegularFile).collect(Collectors.toList())) {
                contents.put(directory.relativize(file).toString(),
                        Files.size(file) < 1000 ? Files.readString(file) : Files.size(file) + " bytes");
            }
            return contents;
        }
    }

    /** Whether two files have the same content; suits large ones. */
    static boolean same(Path one, Path other) throws IOException {
        try (FileChannel a = FileChannel.open(one); FileChannel b = FileChannel.open(other)) {
            return a.size() == b.size() && a.map(FileChannel.MapMode.READ_ONLY, 0, a.size()).equals(
                    b.map(FileChannel.MapMode.READ_ONLY, 0, b.size()));
        }
    }

    /** Runs an operation and returns what it told. */
    static List<String> notices(ThrowingRunnable operation) throws IOException {
        List<String> told = new ArrayList<>();
        Notices.listener = told::add;
        try {
            operation.run();
        } catch (IOException | RuntimeException | Error e) {
            throw e;
        } catch (Throwable e) {
            throw new AssertionError(e);
        } finally {
            Notices.listener = null;
        }
        return told;
    }

    /** Expects a failure whose message says what could not be done and, as a pattern, why. */
    static FileServerException refused(String reason, ThrowingRunnable operation) {
        FileServerException failure = assertThrows(FileServerException.class, operation);
        assertTrue(failure.getMessage(), failure.getMessage().matches("(?s)Cannot .*(" + reason + ").*"));
        return failure;
    }
}
