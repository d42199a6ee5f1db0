package com.vantorel.ep.products.fsclient;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

/** An FTP server in its own process on the loopback interface, and configurations for it. */
final class TestServer implements AutoCloseable {
    private final Process process;
    final int port;

    /** Starts a server on a free port; the options are those of ftpserver.py. */
    TestServer(Path root, String... options) throws IOException {
        List<String> command = new ArrayList<>(Arrays.asList(
                System.getProperty("zv.test.python"), System.getProperty("zv.test.ftpserver"), root.toString()));
        command.addAll(Arrays.asList(options));
        process = new ProcessBuilder(command).redirectError(ProcessBuilder.Redirect.INHERIT).start();
        String line = new BufferedReader(
                new InputStreamReader(process.getInputStream(), StandardCharsets.US_ASCII)).readLine();
        if (line == null) {
            throw new IOException("the FTP server does not start");
        }
        port = Integer.parseInt(line);
    }

    /** The lines of a server's log that match a pattern. */
    static List<String> log(Path file, String pattern) throws IOException {
        List<String> lines = Files.readAllLines(file);
        lines.removeIf(line -> !line.matches(pattern));
        return lines;
    }

    @Override
    public void close() {
        process.destroyForcibly();
        process.onExit().join();
    }

    /** A connected client with a valid account; the lines override the default configuration. */
    FileServerClient client(Path folder, String... lines) throws IOException {
        return connect(folder, "ftp://127.0.0.1:" + port, lines);
    }

    /** A connected client for any URL. */
    static FileServerClient connect(Path folder, String url, String... lines) throws IOException {
        List<String> all = new ArrayList<>(Arrays.asList(
                "url=" + url, "user=gate", "password=Secret-7", "retries=0", "retry-delay=0", "timeout=20"));
        all.addAll(Arrays.asList(lines));
        Path file = Files.write(folder.resolve("fileserver.properties"), all);
        FileServerClientFactory.getInstance().initialize(file.toString());
        FileServerClient client = FileServerClientFactory.getInstance().getFileServerClient();
        client.connect();
        return client;
    }
}
