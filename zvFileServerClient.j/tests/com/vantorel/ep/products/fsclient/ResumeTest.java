package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.fill;
import static com.vantorel.ep.products.fsclient.TestFiles.notices;
import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.same;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.io.RandomAccessFile;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.attribute.FileTime;
import java.util.Arrays;
import java.util.Collections;
import java.util.List;
import java.util.Random;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Uploads of large files that were cut off. */
public class ResumeTest {
    private static final int SIZE = 3 << 20;
    private static final int CUT = 2 << 20;
    /** Received by a server, or on its way, before it notices the fault. */
    private static final long SLACK = 1 << 20;

    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private Path home;
    private Path remote;
    private Path local;
    private Path file;
    private Path log;
    private byte[] content;

    @Before
    public void makeFolders() throws IOException {
        home = folder.getRoot().toPath();
        remote = folder.newFolder("remote").toPath();
        local = folder.newFolder("local").toPath();
        log = home.resolve("log");
        content = new byte[SIZE];
        new Random(1).nextBytes(content);
        file = Files.write(local.resolve("f"), content);
    }

    private TestServer server(String... options) throws IOException {
        String[] all = Arrays.copyOf(options, options.length + 3);
        all[options.length] = "--log=" + log;
        all[options.length + 1] = "--fault=drop";
        all[options.length + 2] = "--fault-after=" + CUT;
        return new TestServer(remote, all);
    }

    private long received() throws IOException {
        return TestServer.log(log, "received .*").stream().mapToLong(line -> Long.parseLong(line.split(" ")[1])).sum();
    }

    private Path part(String target) throws IOException {
        return remote.resolve(SourceVersion.of(file).partName(RemotePath.of(target)));
    }

    @Test
    public void theServersCommandsDecideHow() throws IOException {
        // The server's habit, the command that continues, whether the whole file is sent again.
        String[][] cases = {
                {"--port=0", "REST [0-9]{7}", ""},
                {"--no-replace", "REST [0-9]{7}", ""},
                {"--unknown=REST", "APPE .*", ""},
                {"--old", "APPE .*", ""},
                {"--unknown=REST,APPE", "none", "again"},
                {"--forget-rest", "REST [0-9]{7}", "again"}};
        for (String[] c : cases) {
            Files.deleteIfExists(log);
            fill(remote, "f");
            try (TestServer server = server(c[0], "--faults=1")) {
                FileServerClient client = server.client(home, "retries=1", "resume-from=1");
                client.put(file.toString(), "f");
            }
            assertArrayEquals(c[0], content, Files.readAllBytes(remote.resolve("f")));
            assertEquals(c[0], Collections.singleton("f"), tree(remote).keySet());
            if (!c[0].equals("--old")) {
                // Without SIZE nobody knows what has arrived.
                assertEquals(c[0], c[1].equals("none") ? 0 : 1, TestServer.log(log, c[1]).size());
                assertEquals(c[0] + " " + received(), !c[2].isEmpty(), received() > SIZE);
            }
        }
    }

    @Test
    public void aLaterClientContinuesAndTellsIt() throws IOException {
        try (TestServer server = server("--faults=1")) {
            FileServerClient first = server.client(home, "resume-from=1");
            refused("put local file", () -> first.put(file.toString(), "f"));
            assertEquals(Collections.singleton(part("f").getFileName().toString()), tree(remote).keySet());
            fill(remote, ".zv-0123456789abcdef0123456789abcdef.part");
            FileServerClient second = server.client(home, "resume-from=1");
            second.removeLeftovers("", Arrays.asList(file.toString()));
            long size = Files.size(part("f"));
            List<String> told = notices(() -> second.put(file.toString(), "f"));
            String expected = "['f' is continued: " + size + " of " + SIZE + " bytes have arrived before]";
            assertEquals(expected, told.toString());
        }
        assertArrayEquals(content, Files.readAllBytes(remote.resolve("f")));
        assertEquals(Collections.singleton("f"), tree(remote).keySet());
        assertEquals(SIZE, received());
    }

    @Test
    public void aLargeFileCutOffNearItsEndIsNotSentTwice() throws IOException {
        long large = 100_000_000;
        long cut = 90_000_000;
        try (RandomAccessFile sparse = new RandomAccessFile(file.toFile(), "rw")) {
            for (long position : new long[] {0, cut - 1, cut, cut + SLACK, large - SIZE}) {
                sparse.seek(position);
                sparse.write(content, 0, 1000);
            }
            sparse.setLength(large);
        }
        try (TestServer server = new TestServer(
                remote, "--log=" + log, "--fault=exit", "--fault-after=" + cut)) {
            FileServerClient client = server.client(home);
            refused("put local file", () -> client.put(file.toString(), "f"));
        }
        long before = received();
        assertTrue(before + " bytes", before >= cut && before < cut + SLACK);
        try (TestServer server = new TestServer(remote, "--log=" + log)) {
            server.client(home).put(file.toString(), "f");
        }
        assertTrue(same(file, remote.resolve("f")));
        // What the server had received without writing it is sent again.
        assertTrue(received() + " bytes", received() >= large && received() < large + SLACK);
    }

    @Test
    public void whatHasChangedIsSentFromTheStart() throws IOException {
        for (String change : new String[] {"time", "size", "target"}) {
            Files.deleteIfExists(log);
            try (TestServer server = server("--faults=1")) {
                FileServerClient client = server.client(home, "resume-from=1");
                refused("put local file", () -> client.put(file.toString(), "f"));
                if (change.equals("time")) {
                    content[0] ^= 1;
                    Files.write(file, content);
                    Files.setLastModifiedTime(file, FileTime.fromMillis(1_000_000_000_000L));
                } else if (change.equals("size")) {
                    Files.write(file, Arrays.copyOf(content, SIZE + 1));
                }
                boolean isOther = change.equals("target");
                String target = isOther ? "g" : "f";
                client.removeLeftovers("", isOther ? Collections.emptyList() : Arrays.asList(file.toString()));
                client.put(file.toString(), target);
                assertTrue(change, same(file, remote.resolve(target)));
                assertTrue(change, received() > SIZE && TestServer.log(log, "(REST|APPE).*").isEmpty());
                Files.delete(remote.resolve(target));
                assertEquals(change, "{}", tree(remote).toString());
            }
        }
    }

    @Test
    public void aDirectoryIsAppendedTo() throws IOException {
        String url = remote.toUri().toString();
        FileServerClient client = TestServer.connect(home, url, "resume-from=1");
        // Only what is not sent again can keep a difference.
        byte[] half = Arrays.copyOf(content, SIZE / 2);
        half[0] ^= 1;
        Files.write(part("f"), half);
        client.put(file.toString(), "f");
        byte[] expected = content.clone();
        expected[0] ^= 1;
        assertArrayEquals(expected, Files.readAllBytes(remote.resolve("f")));
        // More than there is to be sent is no part of it; nor is a file that is not large, or text.
        Files.write(part("f"), new byte[SIZE + 1]);
        client.put(file.toString(), "f");
        assertTrue(same(file, remote.resolve("f")));
        client.setFileTransferMode(1);
        Files.write(part("f"), half);
        client.put(file.toString(), "text");
        assertTrue(Files.exists(part("f")));
        client.removeLeftovers("", Collections.emptyList());
        assertFalse(Files.exists(part("f")));
        Files.write(part("f"), half);
        TestServer.connect(home, url, "resume-from=3").put(file.toString(), "f");
        assertTrue(same(file, remote.resolve("f")));
    }
}
