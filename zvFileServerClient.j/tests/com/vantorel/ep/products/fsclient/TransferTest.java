package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.fill;
import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Collections;
import java.util.List;
import java.util.Random;
import java.util.stream.Stream;
import org.junit.After;
import org.junit.Before;
import org.junit.ClassRule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;
import org.junit.runner.RunWith;
import org.junit.runners.Parameterized;

/** Tests for every kind of file server. */
@RunWith(Parameterized.class)
public class TransferTest {
    private static final String ODD_NAME = "Zeichnung Ä 1 – 图 #%&;'.txt";

    @Parameterized.Parameters(name = "{0} {1}")
    public static List<Object[]> servers() {
        return Arrays.asList(new Object[][] {
                {"file", "", ""},
                {"ftp", "", ""},
                {"ftp", "", "passive=false"},
                {"ftp", "--old", ""},
                {"ftp", "--no-replace", ""},
                {"ftps", "", ""},
                {"ftps", "--implicit", "ftps-mode=implicit"}});
    }

    @ClassRule
    public static final TemporaryFolder FOLDER = new TemporaryFolder();

    private static TestServer server;

    @Parameterized.Parameter(0)
    public String scheme;
    @Parameterized.Parameter(1)
    public String habit;
    @Parameterized.Parameter(2)
    public String setting;

    private Path remote;
    private Path local;
    private FileServerClient client;

    @Parameterized.BeforeParam
    public static void start(String scheme, String habit, String setting) throws IOException {
        Path home = FOLDER.getRoot().toPath();
        String tls = scheme.equals("ftps") ? "--tls=" + home.resolve("pem") : "";
        if (!scheme.equals("file")) {
            server = new TestServer(home, Stream.of(habit, tls).filter(o -> !o.isEmpty()).toArray(String[]::new));
        }
    }

    @Parameterized.AfterParam
    public static void stop() {
        if (server != null) {
            server.close();
        }
    }

    @Before
    public void connect() throws IOException {
        Path home = FOLDER.getRoot().toPath();
        Path test = FOLDER.newFolder().toPath();
        remote = Files.createDirectory(test.resolve("remote"));
        local = Files.createDirectory(test.resolve("local"));
        // The server also exposes files outside the root of the URL.
        String url = scheme.equals("file") ? remote.toUri().toString()
                : scheme + "://127.0.0.1:" + server.port + "/" + home.relativize(remote).toString().replace('\\', '/');
        client = TestServer.connect(home, url, "ftps-certificates=pem", setting);
    }

    @After
    public void disconnect() {
        client.disconnect();
    }

    @Test
    public void filesOfEverySizeArriveUnchanged() throws IOException {
        Path back = local.resolve("back " + ODD_NAME);
        int largest = habit.isEmpty() && setting.isEmpty() ? 64 << 20 : 2 << 20;
        for (int size : new int[] {0, 1, 100_000, largest}) {
            byte[] content = new byte[size];
            new Random(size).nextBytes(content);
            Path file = Files.write(local.resolve(ODD_NAME), content);
            client.put(file.toString(), ODD_NAME);
            client.get(ODD_NAME, back.toString());
            assertArrayEquals(content, Files.readAllBytes(remote.resolve(ODD_NAME)));
            assertArrayEquals(content, Files.readAllBytes(back));
        }
        assertEquals(Collections.singleton(ODD_NAME), tree(remote).keySet());
    }

    @Test
    public void textGetsTheLineEndsOfItsReceiver() throws IOException {
        Path file = Files.writeString(local.resolve("a"), "one\r\ntwo\nthr\ree\r\n");
        client.setFileTransferMode(1);
        client.put(file.toString(), "a");
        assertEquals("one\ntwo\nthr\ree\n".replace("\n", System.lineSeparator()), tree(remote).get("a"));
        client.get("a", file.toString());
        assertEquals("one\ntwo\nthr\ree\n".replace("\n", System.lineSeparator()), tree(local).get("a"));
        client.setFileTransferMode(0);
        Files.writeString(file, "one\r\ntwo\n");
        client.put(file.toString(), "a");
        assertEquals("one\r\ntwo\n", tree(remote).get("a"));
    }

    @Test
    public void namesListsAndFiltersChooseTheFiles() throws IOException {
        client.mkDir("in\\deep/er/");
        client.mkDir("/in/deep");
        fill(local, "a1.txt", "a2.txt", "b1.txt", "a1.txt.bak", ".zv-0123456789abcdef0123456789abcdef.part");
        client.put(local.toString(), "in/deep", "a?.tx?");
        client.put(local.toString(), "/in\\deep", Arrays.asList("b1.txt", "a1.txt"));
        fill(remote.resolve("in/deep"), "[x] ü", ".zv-0123456789abcdef0123456789abcdef.old");
        assertArrayEquals(new String[] {"[x] ü", "a1.txt", "a2.txt", "b1.txt", "er"}, client.list("./in//deep"));
        assertArrayEquals(new String[] {"in"}, client.list(""));
        assertArrayEquals(new String[] {}, client.list("in/deep/er"));

        Path target = Files.createDirectory(local.resolve("out"));
        client.get("in/deep", target.toString(), "[!a-z]*");
        assertEquals(Collections.singleton("[x] ü"), tree(target).keySet());
        client.get("in/deep", target.toString(), Arrays.asList("a2.txt"));
        client.get("in/deep", target.toString(), "nothing*");
        client.get("in/deep", target.toString(), "b*");
        assertEquals("{[x] ü=[x] ü, a2.txt=a2.txt, b1.txt=b1.txt}", tree(target).toString());

        for (String there : new String[] {"", "/", ".", "in", "in/deep/er", "\\in\\deep\\[x] ü"}) {
            assertTrue(there, client.exists(there));
        }
        for (String absent : new String[] {"out", "in/deep/a3.txt", "no/where", "in/deep/a1.txt/below"}) {
            assertFalse(absent, client.exists(absent));
        }
    }

    @Test
    public void aNewDirectoryIsMadeByOneOnly() throws IOException {
        fill(remote, "file");
        assertTrue(client.mkNewDir("new/er/est"));
        assertTrue(client.mkNewDir("new/er/Ä 1"));
        for (String there : new String[] {"new/er/est", "new\\er\\Ä 1", "/new", "file", ""}) {
            assertFalse(there, client.mkNewDir(there));
        }
        refused("'file' is not a directory", () -> client.mkNewDir("file/below"));
        assertArrayEquals(new String[] {"est", "Ä 1"}, client.list("new/er"));
    }

    @Test
    public void leftoversAreRemoved() throws IOException {
        Path event = Files.createDirectory(remote.resolve("event"));
        String part = ".zv-0123456789abcdef0123456789abcdef.part";
        fill(event, part, part.replace("part", "old"), ".zv-notes.part", "whole");
        client.removeLeftovers("event", Collections.emptyList());
        client.removeLeftovers("absent", Collections.emptyList());
        assertEquals("{.zv-notes.part=.zv-notes.part, whole=whole}", tree(event).toString());
        assertTrue(client.mkNewDir("other"));
        fill(remote.resolve("other"), part);
        client.removeLeftovers("event", Collections.emptyList());
        client.removeLeftovers("other/", Collections.emptyList());
        // What this client has just made is not looked through.
        assertEquals(Collections.singleton(part), tree(remote.resolve("other")).keySet());
    }

    @Test
    public void anExistingFileIsReplaced() throws IOException {
        fill(remote, "a", "b");
        Path file = Files.writeString(local.resolve("a"), "new");
        client.put(file.toString(), "a");
        client.get("b", file.toString());
        assertEquals("{a=new, b=b}", tree(remote).toString());
        assertEquals("{a=b}", tree(local).toString());
    }

    @Test
    public void aProbeLeavesNothing() throws IOException {
        fill(remote, "a");
        client.probe();
        assertEquals("{a=a}", tree(remote).toString());
    }

    @Test
    public void noNameLeavesTheRoot() throws IOException {
        fill(local, "f");
        String file = local.resolve("f").toString();
        for (String name : new String[] {"..", "../local/f", "x/../../local", "\\..\\x", "C:\\x", "c:x", ".. /x", "...",
                "x\ny", "x\r\nDELE y", "\0"}) {
            refused("refused|leads out", () -> client.put(file, name));
            refused("refused|leads out", () -> client.get(name, file));
            refused("refused|leads out", () -> client.mkDir(name));
            refused("refused|leads out", () -> client.exists(name));
            refused("refused|leads out", () -> client.list(name));
            refused("refused|leads out", () -> client.get(name, local.toString(), "*"));
        }
        for (String name : new String[] {"..", "../f", "a/b", "a\\b", "", null}) {
            refused("refused", () -> client.get("", local.toString(), Arrays.asList("f", name)));
            refused("refused", () -> client.put(local.toString(), "", Arrays.asList("f", name)));
        }
        assertEquals("{f=f}", tree(local).toString());
        assertEquals("{}", tree(remote).toString());
    }

    @Test
    public void failuresNameTheFileAndChangeNothing() throws IOException {
        fill(local, "f");
        fill(Files.createDirectories(remote.resolve("dir/sub")), "x");
        fill(remote, "old");
        Path file = local.resolve("f");
        refused("'nothing'", () -> client.get("nothing", file.toString()));
        refused("'dir'", () -> client.get("dir", file.toString()));
        refused("no local directory '.*none'", () -> client.get("old", local + "/none/f"));
        refused("local' is not a regular file", () -> client.get("old", local.toString()));
        refused("no local directory", () -> client.get("", local + "/none", "*"));
        refused("there is no '.*none'", () -> client.put(local + "/none", "old"));
        refused("not a regular file", () -> client.put(local.toString(), "old"));
        refused("'dir' is a directory on the file server", () -> client.put(file.toString(), "dir"));
        refused("'none/f'", () -> client.put(file.toString(), "none/f"));
        refused("'old/f'", () -> client.put(file.toString(), "old/f"));
        refused("names no file", () -> client.put(file.toString(), "/"));
        refused("'old' is not a directory", () -> client.mkDir("old/below"));
        refused("'none'", () -> client.list("none"));
        refused("'old'", () -> client.list("old"));
        refused("'nothing'", () -> client.get("", local.toString(), Arrays.asList("nothing")));
        refused("bracket is not closed", () -> client.get("", local.toString(), "[a"));
        refused("mode 2: there is no such mode", () -> client.setFileTransferMode(2));
        refused("no remote name", () -> client.get(null, file.toString()));
        assertEquals("{f=f}", tree(local).toString());
        assertEquals("{dir/sub/x=x, old=old}", tree(remote).toString());
        client.disconnect();
        refused("not connected", () -> client.get("old", file.toString()));
    }
}
