package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.io.PrintWriter;
import java.io.StringWriter;
import java.net.InetAddress;
import java.net.ServerSocket;
import java.net.SocketTimeoutException;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Random;
import org.apache.commons.net.ftp.FTPFile;
import org.apache.commons.net.ftp.FTPFileEntryParserImpl;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** What a server cannot do to a client, whatever it answers. */
public class HostileServerTest {
    private static final String UNIX_LINE = "-rw-r--r-- 1 a b 3 Jan 01 00:00 ";
    private static final int LARGE = 16 << 20;

    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private Path home;
    private Path local;

    @Before
    public void makeFolder() throws IOException {
        home = folder.getRoot().toPath();
        local = folder.newFolder("local").toPath();
    }

    /** A class that a server could name as a parser of listings. */
    public static final class Trap extends FTPFileEntryParserImpl {
        static {
            System.setProperty("zv.test.trapped", "true");
        }

        @Override
        public FTPFile parseFTPEntry(String line) {
            return null;
        }
    }

    @Test
    public void theServerChoosesNoClass() throws IOException {
        String[][] cases = {
                {"com.vantorel.ep.products.fsclient.HostileServerTest$Trap", UNIX_LINE + "f\r\n"},
                {"org.apache.commons.net.ftp.parser.MLSxEntryParser", UNIX_LINE + "f\r\n"},
                {"UNIX Type: L8", UNIX_LINE + "f\r\n"},
                {"?", UNIX_LINE + "f\r\n"},
                {"Windows_NT", "01-01-24  12:00AM  3 f\r\n"},
                {"Windows_NT", UNIX_LINE + "f\r\n"}};
        for (String[] c : cases) {
            try (HostileServer server = new HostileServer("SYST=215 " + c[0], "data=" + c[1])) {
                assertEquals(Arrays.toString(c), "[f]", Arrays.toString(server.client(home).list("")));
            }
        }
        try (HostileServer server = new HostileServer("SYST=502 no", "data=" + UNIX_LINE + "f\r\n")) {
            assertEquals("[f]", Arrays.toString(server.client(home).list("")));
        }
        assertEquals(null, System.getProperty("zv.test.trapped"));
    }

    @Test(timeout = 60_000)
    public void aLineThatIsAllWorkIsLeftOut() throws IOException {
        String work = "drwxr-xr-x 1 " + "1 ".repeat(20_000);
        try (HostileServer server = new HostileServer("data=" + work + "\r\n" + UNIX_LINE + "f\r\n")) {
            assertEquals("[f]", Arrays.toString(server.client(home).list("")));
        }
        // So many shorter ones take their time.
        String lines = ("drwxr-xr-x 1 " + "1 ".repeat(450) + "\r\n").repeat(10_000);
        try (HostileServer server = new HostileServer("data=" + lines)) {
            FileServerClient client = server.client(home, "operation-timeout=2");
            refused("2 seconds of operation-timeout", () -> client.list(""));
        }
    }

    @Test(timeout = 100_000)
    public void aServerThatDripsIsLeft() throws IOException {
        Files.write(local.resolve("large"), new byte[LARGE]);
        String[][] cases = {
                {"welcome=220-hello...", "the server gave less than 1000 bytes a second for 1 second"},
                {"PASS=230-you are in...", "the server gave less than"},
                {"PWD=257-...", "the server gave less than"},
                {"data=" + UNIX_LINE + "...", "the server gave less than"},
                {"SYST=215-...", "the server gave less than"},
                {"STOR", "the server took less than 1000000 bytes a second for 1 second"}};
        for (String[] c : cases) {
            boolean isUpload = c[0].equals("STOR");
            String pace = "slowest-rate=" + (isUpload ? "1000000" : "1000");
            try (HostileServer server = isUpload ? new HostileServer() : new HostileServer(c[0])) {
                Job job = () -> {
                    FileServerClient client = server.client(home, "timeout=1", pace, "operation-timeout=60");
                    if (isUpload) {
                        client.put(local.resolve("large").toString(), "large");
                    }
                    client.list("");
                };
                if (c[1].isEmpty()) {
                    job.run();
                } else {
                    refused(c[1], job::run);
                }
            }
        }
        try (HostileServer server = new HostileServer("SIZE=550 no", "data=x...")) {
            FileServerClient client = server.client(home, "timeout=1", "slowest-rate=1000");
            refused("'f'.* the server gave less than", () -> client.get("f", local.resolve("f").toString()));
        }
        // Any movement will do, but not for ever, unless it is a file's.
        for (String drip : new String[] {"welcome=220-hello...", "data=" + UNIX_LINE + "..."}) {
            try (HostileServer server = new HostileServer(drip)) {
                refused("more than the 2 seconds of operation-timeout",
                        () -> server.client(home, "timeout=1", "slowest-rate=0", "operation-timeout=2").list(""));
            }
        }
        String slow = "x".repeat(150) + "...";
        try (HostileServer server = new HostileServer("SIZE=213 150", "data=" + slow)) {
            FileServerClient client = server.client(home, "timeout=1", "slowest-rate=0", "operation-timeout=2");
            refused("more than the announced 150 bytes", () -> client.get("f", local.resolve("f").toString()));
        }
        assertEquals("{large=" + LARGE + " bytes}", tree(local).toString());
    }

    private interface Job {
        void run() throws IOException;
    }

    @Test
    public void aFileThatIsTooLargeIsNotFetched() throws IOException {
        String[][] cases = {
                {"SIZE=213 1048577", "it has 1048577 bytes, and largest-file is 1048576"},
                {"SIZE=213 9000000000000000000", "largest-file is"},
                {"SIZE=550 unknown", "more than the 1048576 bytes of largest-file arrived"},
                {"SIZE=213 -5", ""},
                {"SIZE=213 3", "more than the announced 3 bytes"}};
        for (String[] c : cases) {
            try (HostileServer server = new HostileServer(c[0], "data=" + "x".repeat(2 << 20))) {
                FileServerClient client = server.client(home, "largest-file=1");
                refused("get remote file 'f'.*" + c[1], () -> client.get("f", local.resolve("f").toString()));
            }
        }
        long room = LocalFiles.room(local);
        try (HostileServer server = new HostileServer("SIZE=213 " + (room + (1L << 30)))) {
            FileServerClient client = server.client(home, "largest-file=1000000");
            if (room < (900_000L << 20)) {
                refused("and there is room for [0-9]+", () -> client.get("f", local.resolve("f").toString()));
            }
        }
        assertEquals("{}", tree(local).toString());
    }

    @Test
    public void aThirdHostIsNotContacted() throws IOException {
        int port;
        try (HostileServer probe = new HostileServer()) {
            port = probe.dataPort();
        }
        InetAddress otherHost = InetAddress.getByName("127.0.0.2");
        try (ServerSocket third = new ServerSocket(port, 1, otherHost)) {
            third.setSoTimeout(200);
            String answer = String.format("PASV=227 (127,0,0,2,%d,%d)", port / 256, port % 256);
            try (HostileServer server = new HostileServer(port, answer)) {
                server.client(home).get("f", local.resolve("f").toString());
                assertEquals("{f=abc}", tree(local).toString());
                assertThrows(SocketTimeoutException.class, third::accept);
                assertTrue(server.commands.toString(), server.commands.contains("PASV"));
            }
        }
    }

    @Test
    public void aPasswordThatTheServerRepeatsIsMasked() throws IOException {
        String[] answers = {"PASS=530 No, %PASS% is wrong.", "PASS=530-No,\r\n530 %PASS%", "PASS=%PASS%", "PASS=5%PASS%",
                "PASS=421 %PASS%", "PASS=332 %PASS%", "PWD=550 %PASS%", "CWD=550 %PASS%",
                "TYPE=500 %PASS%", "PASV=227 (%PASS%)", "PASV=500 %PASS%", "SIZE=213 %PASS%", "SIZE=450 %PASS%",
                "RETR=550 %PASS%", "LIST=450 %PASS%", "data=" + UNIX_LINE + "../%PASS%\r\n"};
        String[][] passwords = {
                {"Secret-7", "UTF-8", "Secret-7"}, {"Secret-7\\  ", "UTF-8", "Secret-7"},
                {"\\ Secret-7\\u00a0\\ ", "UTF-8", "Secret-7"}, {"\\t Secret 7", "UTF-8", null},
                {"p\\u00e4\\u20ac-7x", "ISO-8859-1", "-7x"}, {"p\\u00e4\\u20ac-7x", "UTF-8", "-7x"}};
        for (String[] p : passwords) {
            for (String answer : answers) {
                try (HostileServer server = new HostileServer(answer)) {
                    server.encoding = Charset.forName(p[1]);
                    StringWriter told = new StringWriter();
                    FileServerException failure = assertThrows(answer, FileServerException.class, () -> {
                        FileServerClient client = server.client(home, "password=" + p[0], "encoding=" + p[1]);
                        client.list("");
                        client.get("f", local.resolve("f").toString());
                    });
                    failure.printStackTrace(new PrintWriter(told, true));
                    String secret = p[2] == null ? "control character" : p[2];
                    assertEquals(answer + Arrays.toString(p) + told, p[2] == null, told.toString().contains(secret));
                    assertFalse(told.toString(), told.toString().contains("Secret 7"));
                }
            }
        }
    }

    /** The seed is the same each time. */
    @Test(timeout = 100_000)
    public void whateverItAnswersIsAFailureWithoutSecrets() throws IOException {
        String[] commands = {"welcome", "USER", "PASS", "FEAT", "PWD", "CWD", "SYST", "TYPE", "PASV", "LIST", "SIZE", "MLST",
                "MLSD", "RETR", "data"};
        String[] pieces = {"2", "20", "220 ", "150", "227 ", "213", "257 ", "550", "530-", "331", "-", " ", "\"", "(", ",", "\r\n",
                "\n", "\r", "%PASS%", "%PASS%", "a", "9999999999999999999", "|||", "type=file;size=", ";", "../", "/",
                UNIX_LINE, "\u0000", "\u001b[31m", "\u00ff\u00f4", "\u00e9", "MLST", "REST STREAM", "UTF8"};
        Random random = new Random(7);
        for (int round = 0; round < 150; ++round) {
            String command = commands[random.nextInt(commands.length)];
            StringBuilder answer = new StringBuilder();
            for (int i = random.nextInt(12); i >= 0; --i) {
                answer.append(pieces[random.nextInt(pieces.length)]);
            }
            try (HostileServer server = new HostileServer(command + "=" + answer + "%END%")) {
                server.encoding = StandardCharsets.ISO_8859_1;
                FileServerClient client = server.client(home, "timeout=1");
                client.exists("f");
                client.list("");
                client.get("f", local.resolve("f").toString());
            } catch (FileServerException e) {
                StringWriter told = new StringWriter();
                e.printStackTrace(new PrintWriter(told, true));
                assertFalse(round + ": " + told, told.toString().contains("Secret-7"));
                assertFalse(round + ": " + told, e.getMessage().chars().anyMatch(Character::isISOControl));
            }
        }
    }

    @Test
    public void bytesThatAreNoTextAreShownAll() throws IOException {
        try (HostileServer server = new HostileServer("PASS=530 caf\u00e9 \u0001\u001b[31m end")) {
            server.encoding = StandardCharsets.ISO_8859_1;
            refused("530 caf\ufffd +\\[31m end", () -> server.client(home));
        }
    }
}
