package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.notices;
import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** How data connections are opened, and what servers make of text. */
public class ServerHabitsTest {
    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private Path home;
    private Path remote;
    private Path file;
    private Path log;

    @Before
    public void makeFolders() throws IOException {
        home = folder.getRoot().toPath();
        remote = folder.newFolder("remote").toPath();
        file = home.resolve("f");
        log = home.resolve("log");
    }

    @Test
    public void whoOpensDataConnectionsIsConfigured() throws IOException {
        Files.writeString(file, "text");
        for (String scheme : new String[] {"ftp", "ftps"}) {
            List<String> options = new ArrayList<>(Arrays.asList("--log=" + log, "--pasv-host=10.255.255.1"));
            if (scheme.equals("ftps")) {
                options.add("--tls=" + home.resolve("pem"));
            }
            try (TestServer server = new TestServer(remote, options.toArray(new String[0]))) {
                String[][] cases = {{"", "PASV"}, {"passive=true", "PASV"}, {"passive=false", "PORT"}};
                for (String[] c : cases) {
                    Files.deleteIfExists(log);
                    String url = scheme + "://127.0.0.1:" + server.port;
                    FileServerClient client = TestServer.connect(home, url, "ftps-certificates=pem", c[0]);
                    client.put(file.toString(), "f");
                    client.get("f", file.toString());
                    assertEquals(1, client.list("").length);
                    client.disconnect();
                    List<String> commands = TestServer.log(log, "(PASV|PORT|EPSV|EPRT).*");
                    assertEquals(commands.toString(), 3, commands.size());
                    assertTrue(commands.toString(), commands.stream().allMatch(line -> line.startsWith(c[1])));
                }
            }
        }
    }

    @Test
    public void encryptionThatTheServerHasNotIsToldAtOnce() throws IOException {
        String[][] cases = {
                {"ftps-mode=explicit", "--port=0", "the server offers no TLS: it answered '5[0-9]{2} [^']*'"},
                {"ftps-mode=explicit", "--unknown=AUTH", "the server offers no TLS: it answered '5[0-9]{2} [^']*'"},
                {"ftps-mode=implicit", "--port=0", "the server offers no TLS on this port"}};
        for (String[] c : cases) {
            try (TestServer server = new TestServer(remote, c[1], "--log=" + log)) {
                String url = "ftps://127.0.0.1:" + server.port;
                List<String> told = notices(
                        () -> refused(c[2], () -> TestServer.connect(home, url, "retries=3", c[0]).list("")));
                assertEquals(Arrays.toString(c), "[]", told.toString());
            }
        }
    }

    @Test
    public void textThatArrivesWithOtherLineEndsIsTold() throws IOException {
        String[][] cases = {
                {"", "", "some\ntext\r\n", null},
                {"--ignore-ascii", "", "some\ntext\r\n",
                        "with CR LF line ends, but those of the server's system are LF"},
                {"--ignore-ascii", "UNIX emulated by a server", "some\ntext\r\n", null},
                {"--ignore-ascii", "Windows_NT", "some\ntext\r\n", null},
                {"", "Windows_NT", "some\ntext\r\n", "with LF line ends, but those of the server's system are CR LF"},
                {"--ignore-ascii", "", "no line end\r", null},
                {"--unknown=SYST", "", "some\ntext\r\n", null},
                {"--old", "", "some\ntext\r\n", null},
                {"--fault=cut", "UNIX", "some\ntext\r\n", "neither LF nor CR LF throughout: 3 bytes"}};
        for (String[] c : cases) {
            Files.writeString(file, c[2]);
            List<String> options = new ArrayList<>(Arrays.asList("--fault-after=3"));
            options.addAll(Arrays.asList(c[0].isEmpty() ? "--faults=0" : c[0], "--system=" + c[1]));
            try (TestServer server = new TestServer(remote, options.toArray(new String[0]))) {
                FileServerClient client = server.client(home);
                client.setFileTransferMode(1);
                List<String> told = notices(() -> client.put(file.toString(), "f"));
                assertEquals(Arrays.toString(c) + told, c[3] == null ? 0 : 1, told.size());
                assertTrue(told.toString(), c[3] == null || told.get(0).startsWith("'f' arrived with"));
                assertTrue(told.toString(), c[3] == null || told.get(0).contains(c[3]));
                // In binary mode nothing is converted and nothing is told.
                client.setFileTransferMode(0);
                if (!c[0].equals("--fault=cut")) {
                    assertEquals("[]", notices(() -> client.put(file.toString(), "f")).toString());
                    assertEquals(c[2], tree(remote).get("f"));
                }
            }
        }
    }
}
