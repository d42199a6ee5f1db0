package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.fill;
import static com.vantorel.ep.products.fsclient.TestFiles.notices;
import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.io.PrintWriter;
import java.io.StringWriter;
import java.nio.file.Files;
import java.nio.file.Path;
import java.time.Duration;
import java.util.Collections;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.SortedMap;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** The files and the messages after an FTP server fails, refuses or sends wrong replies. */
public class BrokenTransferTest {
    private static final int LARGE = 16 << 20;

    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private Path home;
    private Path remote;
    private Path local;
    private String localFile;

    @Before
    public void makeFolders() throws IOException {
        home = folder.getRoot().toPath();
        remote = folder.newFolder("remote").toPath();
        local = folder.newFolder("local").toPath();
        localFile = local.resolve("f").toString();
    }

    @Test
    public void aServerThatEndsDuringAnUploadLosesNothing() throws IOException {
        Files.write(local.resolve("f"), new byte[LARGE]);
        fill(remote, "kept");
        int port;
        FileServerClient client;
        try (TestServer server = new TestServer(remote, "--fault=exit")) {
            port = server.port;
            client = server.client(home);
            refused("put local file '.*/f' to remote file 'kept'", () -> client.put(localFile, "kept"));
        }
        SortedMap<String, String> left = tree(remote);
        left.keySet().removeIf(TemporaryName::matches);
        assertEquals("{kept=kept}", left.toString());
        assertEquals("{f=" + LARGE + " bytes}", tree(local).toString());
        try (TestServer again = new TestServer(remote, "--port=" + port)) {
            client.put(localFile, "kept");
            assertEquals(port, again.port);
            assertEquals(LARGE + " bytes", tree(remote).get("kept"));
        }
    }

    @Test
    public void aServerThatEndsDuringADownloadLosesNothing() throws IOException {
        Files.write(remote.resolve("large"), new byte[LARGE]);
        fill(local, "f");
        int port;
        FileServerClient client;
        try (TestServer server = new TestServer(remote, "--fault=exit")) {
            port = server.port;
            client = server.client(home);
            for (int mode : new int[] {0, 1}) {
                client.setFileTransferMode(mode);
                refused("get remote file 'large' to local file '.*/f'", () -> client.get("large", localFile));
            }
        }
        assertEquals("{f=f}", tree(local).toString());
        try (TestServer again = new TestServer(remote, "--port=" + port)) {
            client.get("large", localFile);
            assertEquals(port, again.port);
            assertEquals("{f=" + LARGE + " bytes}", tree(local).toString());
        }
    }

    @Test
    public void aFileThatWasCutOnTheWayIsNotTaken() throws IOException {
        Files.write(local.resolve("f"), new byte[LARGE]);
        Files.write(remote.resolve("large"), new byte[LARGE / 2]);
        SortedMap<String, String> before = tree(home);
        try (TestServer server = new TestServer(remote, "--fault=cut")) {
            FileServerClient client = server.client(home);
            refused("1048576 of " + LARGE + " bytes arrived", () -> client.put(localFile, "large"));
            refused("1048576 of " + LARGE / 2 + " bytes arrived", () -> client.get("large", localFile));
        }
        SortedMap<String, String> after = tree(home);
        after.remove("fileserver.properties");
        assertEquals(before, after);
    }

    @Test
    public void aBrokenConnectionIsTriedAgainAsOftenAsConfigured() throws IOException {
        Files.write(local.resolve("f"), new byte[LARGE]);
        try (TestServer server = new TestServer(remote, "--fault=drop", "--faults=5")) {
            FileServerClient client = server.client(home, "retries=1");
            refused("'f'.*\\(after 2 attempts\\)", () -> client.put(localFile, "f"));
            assertEquals("{}", tree(remote).toString());
            server.client(home, "retries=3").put(localFile, "f");
            assertEquals("{f=" + LARGE + " bytes}", tree(remote).toString());
        }
    }

    @Test(timeout = 30_000)
    public void aServerThatStopsTakingOrGivingIsLeft() throws IOException {
        Files.write(local.resolve("f"), new byte[LARGE]);
        Files.write(remote.resolve("large"), new byte[LARGE]);
        try (TestServer server = new TestServer(remote, "--fault=stop")) {
            FileServerClient client = server.client(home, "timeout=2", "connect-timeout=2");
            refused("took less than 100 bytes a second for 2 seconds", () -> client.put(localFile, "f"));
        }
        try (TestServer server = new TestServer(remote, "--fault=stop")) {
            FileServerClient client = server.client(home, "timeout=2", "connect-timeout=2");
            refused("timed out", () -> client.get("large", localFile));
        }
        assertEquals("{f=" + LARGE + " bytes}", tree(local).toString());
    }

    @Test
    public void theReplacedFileComesBackWhenTheNewOneCannotHaveItsName() throws IOException {
        fill(local, "f");
        fill(remote, "kept");
        try (TestServer server = new TestServer(remote, "--refuse-renames=2")) {
            refused("Permission denied", () -> server.client(home).put(localFile, "kept"));
            assertEquals("{kept=kept}", tree(remote).toString());
        }
    }

    @Test
    public void aPasswordIsNeverTold() throws IOException {
        try (TestServer server = new TestServer(remote, "--echo-password")) {
            for (String password : new String[] {"Wrong-9", "Wrong-9\\  ", "\\ Wrong-9"}) {
                FileServerException failure =
                        refused("user 'gate'.*530", () -> server.client(home, "password=" + password, "retries=5"));
                StringWriter trace = new StringWriter();
                failure.printStackTrace(new PrintWriter(trace));
                assertFalse(trace.toString(), trace.toString().contains("Wrong-9"));
                assertTrue(trace.toString(), trace.toString().matches("(?s).*No, +\\*+ +is wrong.*"));
            }
        }
    }

    @Test
    public void eachRetryIsTold() throws IOException {
        Files.write(local.resolve("f"), new byte[LARGE]);
        try (TestServer server = new TestServer(remote, "--fault=drop", "--faults=2")) {
            FileServerClient client = server.client(home, "retries=5");
            List<String> told = notices(() -> client.put(localFile, "f"));
            assertEquals(told.toString(), 2, told.size());
            for (int i = 0; i < 2; ++i) {
                String expected =
                        "Cannot put local file '.*/f' to remote file 'f': .+; retry " + (i + 1) + " of 5 in 0.0 s";
                assertTrue(told.get(i), told.get(i).matches(expected));
            }
        }
    }

    @Test
    public void theBackOffGrowsUpToAMinuteAndVaries() {
        // Delay, retry, the shortest and the longest pause, all in milliseconds but the retry.
        long[][] cases = {{0, 1, 0, 0}, {0, 9, 0, 0}, {2000, 1, 1000, 2000}, {2000, 2, 2000, 4000},
                {2000, 4, 8000, 16_000}, {2000, 6, 30_000, 60_000}, {2000, 1000, 30_000, 60_000},
                {86_400_000, 7, 43_200_000, 86_400_000}};
        for (long[] c : cases) {
            Retry retry = new Retry(null, 1000, Duration.ofMillis(c[0]));
            Set<Long> pauses = new HashSet<>();
            for (int i = 0; i < 100; ++i) {
                long pause = retry.backOff((int) c[1]);
                assertTrue(c[0] + ", " + c[1] + ": " + pause, pause >= c[2] && pause <= c[3]);
                pauses.add(pause);
            }
            assertEquals(c[2] != c[3], pauses.size() > 1);
        }
    }

    @Test
    public void aDirectoryWhoseMakingWasNotAnsweredIsNobodys() throws IOException {
        try (TestServer server = new TestServer(remote, "--fault=mkd", "--faults=1")) {
            FileServerClient client = server.client(home, "retries=2");
            refused("it is not known whether", () -> client.mkNewDir("event"));
            assertFalse(client.mkNewDir("event"));
            assertTrue(client.mkNewDir("another"));
        }
    }

    @Test
    public void leftoversThatCannotBeRemovedAreTold() throws IOException {
        String part = ".zv-0123456789abcdef0123456789abcdef.part";
        fill(remote, part);
        try (TestServer server = new TestServer(remote, "--read-only")) {
            FileServerClient client = server.client(home);
            List<String> told = notices(() -> client.removeLeftovers("", Collections.emptyList()));
            assertEquals(told.toString(), 1, told.size());
            assertTrue(told.get(0), told.get(0).contains(part) && told.get(0).contains("550"));
        }
    }

    @Test
    public void aServerThatTakesNothingSaysSo() throws IOException {
        fill(local, "f");
        try (TestServer server = new TestServer(remote, "--read-only")) {
            FileServerClient client = server.client(home);
            refused("'a'.*550 Not enough privileges", () -> client.put(localFile, "a"));
            refused("'a'.*550 Not enough privileges", () -> client.mkDir("a"));
            refused("write and remove .*550 Not enough privileges", client::probe);
        }
        refused("ftp://127.0.0.1:1/: Connection refused",
                () -> TestServer.connect(home, "ftp://127.0.0.1:1/", "connect-timeout=2"));
    }

    @Test
    public void namesInAListingCannotLeadElsewhere() throws IOException {
        fill(remote, "good");
        for (String name : new String[] {"../x", "a/b", "..\\x"}) {
            try (TestServer server = new TestServer(remote, "--listing=" + name)) {
                FileServerClient client = server.client(home);
                refused("list.* refused", () -> client.list(""));
                refused("get files.* refused", () -> client.get("", local.toString(), "*"));
                client.get("", local.toString(), "g*");
                assertEquals(name, "{good=good}", tree(local).toString());
            }
        }
    }

    @Test(timeout = 60_000)
    public void aListingWithoutEndIsLeft() throws IOException {
        try (TestServer server = new TestServer(remote, "--endless-listing")) {
            FileServerClient client = server.client(home);
            refused("list.*does not end", () -> client.list(""));
        }
    }

    @Test
    public void onlyATrustedServerGetsThePassword() throws IOException {
        try (TestServer server = new TestServer(remote, "--tls=" + home.resolve("pem"), "--tls-name=DNS:else.where")) {
            String url = "ftps://127.0.0.1:" + server.port;
            refused("not trusted", () -> TestServer.connect(home, url, "retries=9"));
            refused("not trusted.*127.0.0.1", () -> TestServer.connect(home, url, "ftps-certificates=pem"));
            refused("certificates in '.*ftpserver.py': No certificate", () -> TestServer.connect(
                    home, url, "ftps-certificates=" + System.getProperty("zv.test.ftpserver")));
            TestServer.connect(home, url, "ftps-certificates=pem", "ftps-check-host=false").list("");
            refused("550|521|530", () -> server.client(home));
        }
        try (TestServer server = new TestServer(remote)) {
            refused("500", () -> TestServer.connect(home, "ftps://127.0.0.1:" + server.port));
        }
    }
}
