package com.vantorel.ep.products.fsclient;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.stream.Collectors;
import org.junit.After;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** How far a transfer is. */
public class ProgressTest {
    private static final int SIZE = 3 << 20;
    private static final long USUAL_INTERVAL = Progress.interval;

    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private final List<String> files = new ArrayList<>();
    private final List<Long> totals = new ArrayList<>();
    private final List<Long> bytes = new ArrayList<>();
    private Path home;
    private Path remote;
    private Path source;
    private Path target;

    @Before
    public void listen() throws IOException {
        home = folder.getRoot().toPath();
        remote = folder.newFolder("remote").toPath();
        source = Files.write(home.resolve("source"), new byte[SIZE]);
        target = home.resolve("target");
        Progress.interval = 0;
        Notices.listener = new Notices.Listener() {
            @Override
            public void notice(String text) {
                files.clear();
                totals.clear();
                bytes.clear();
            }

            @Override
            public void progress(String file, long done, long total) {
                files.add(file);
                totals.add(total);
                bytes.add(done);
            }
        };
    }

    @After
    public void listenNoLonger() {
        Notices.listener = null;
        Progress.interval = USUAL_INTERVAL;
    }

    /** What was told since the last call has to be of this file, and go from the one size up to the other. */
    private void requireTold(Path file, long total, long from, long to) {
        assertEquals(Set.of(file.toString()), new HashSet<>(files));
        assertEquals(Set.of(total), new HashSet<>(totals));
        assertEquals(bytes.stream().sorted().collect(Collectors.toList()), bytes);
        assertTrue(bytes.toString(), bytes.get(0) > from && bytes.get(0) < to);
        assertEquals(Long.valueOf(to), bytes.get(bytes.size() - 1));
        Notices.listener.notice("forget it");
    }

    private void requireToldBothWays(FileServerClient client) throws FileServerException {
        for (int mode = 0; mode < 2; ++mode) {
            client.setFileTransferMode(mode);
            client.put(source.toString(), "f");
            requireTold(source, SIZE, 0, SIZE);
            client.get("f", target.toString());
            requireTold(target, mode == 0 ? SIZE : Transport.UNKNOWN_SIZE, 0, SIZE);
        }
    }

    @Test
    public void isToldBothWaysAndInBothModes() throws IOException {
        requireToldBothWays(TestServer.connect(home, remote.toUri().toString()));
        try (TestServer server = new TestServer(remote)) {
            requireToldBothWays(server.client(home));
        }
    }

    @Test
    public void aContinuedUploadBeginsWhereItStopped() throws IOException {
        try (TestServer server = new TestServer(remote, "--fault=drop", "--fault-after=" + (2 << 20), "--faults=1")) {
            server.client(home, "retries=1", "resume-from=1").put(source.toString(), "f");
        }
        requireTold(source, SIZE, 2 << 20, SIZE);
    }

    @Test
    public void isToldSomeTimesASecond() throws IOException {
        Progress.interval = USUAL_INTERVAL;
        try (TestServer server = new TestServer(remote, "--rate=2000000")) {
            FileServerClient client = server.client(home);
            Files.write(remote.resolve("f"), new byte[SIZE]);
            long start = System.nanoTime();
            client.get("f", target.toString());
            long mostCalls = (System.nanoTime() - start) / USUAL_INTERVAL;
            assertTrue(bytes.toString(), bytes.size() >= 3 && bytes.size() <= mostCalls);
        }
    }
}
