package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertThrows;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

public class SettingsTest {
    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    private Settings read(String text) throws IOException {
        return Settings.read(Files.writeString(folder.getRoot().toPath().resolve("my.properties"), text));
    }

    @Test
    public void whatIsNotSetHasItsDefault() throws IOException {
        Settings settings = read("\uFEFFurl = ftps://[::1]:2121//srv/my%20files \nuser=ä\npassword=\\ x \ntimeout=7");
        assertEquals("::1 2121 /srv/my files", settings.host + " " + settings.port + " " + settings.serverPath);
        assertEquals("ä, x ,7", settings.user + "," + settings.password + "," + settings.timeout.getSeconds());
        assertEquals(30, settings.connectTimeout.getSeconds());
        assertEquals("3, 2", settings.retries + ", " + settings.retryDelay.getSeconds());
        assertEquals(16 << 20, settings.resumeFrom);
        assertEquals("100, 600", settings.slowestRate + ", " + settings.operationTimeout.getSeconds());
        assertEquals(100_000L << 20, settings.largestFile);
        assertEquals(StandardCharsets.UTF_8, settings.encoding);
        assertTrue(settings.passive && settings.checkHost && !settings.implicit);
        assertEquals("anonymous", read("url=ftp://h").user);
        assertEquals(21, read("url=ftp://h\nftps-mode=implicit").port);
        assertEquals(990, read("url=ftps://h\nftps-mode=implicit").port);
        assertEquals(System.getenv("PATH"), read("url=ftp://h\npassword-env=PATH").password);
        Path directory = read("url=file:///srv/my%20files").directory;
        assertEquals(folder.getRoot().toPath().getRoot().resolve("srv").resolve("my files"), directory);
        assertTrue(read("url=file:///srv/a@b").directory.endsWith("a@b"));
    }

    @Test
    public void whatIsWrongIsNamed() throws IOException {
        String[][] cases = {
                {"", "url", "missing"},
                {"url=http://h/", "url", "none of file, ftp, ftps"},
                {"url=/srv/files", "url", "none of file, ftp, ftps"},
                {"url=file:///srv/my files", "url", "not a url"},
                {"url=file://host/srv", "url", "no directory"},
                {"url=file:srv", "url", "no directory"},
                {"url=ftp:///files", "url", "no host"},
                {"url=ftp://h:99999/", "url", "65535"},
                {"url=ftp://h/a?b", "url", "\\?"},
                {"url=ftp://h/a%0D%0ADELE%20b", "url", "control character"},
                {"url=ftp://gate:Secret-7@h/", "url", "keys user and password"},
                {"url=FTPS://gate:Secret-7/@h/", "url", "keys user and password"},
                {"url=sftp://gate:Secret-7@h/", "url", "keys user and password"},
                {"url=gate:Secret-7@h/x y", "url", "keys user and password"},
                {"url=file://gate:Secret-7@h/srv", "url", "keys user and password"},
                {"url=ftp://h\nslowest-rate=1000001", "slowest-rate", "from 0 to 1000000"},
                {"url=ftp://h\noperation-timeout=0", "operation-timeout", "at least 1"},
                {"url=ftp://h\noperation-timeout=86401", "operation-timeout", "to 86400"},
                {"url=ftp://h\nconnect-timeout=86401", "connect-timeout", "to 86400"},
                {"url=ftp://h\ntimeout=86401", "timeout", "to 86400"},
                {"url=ftp://h\nlargest-file=1000001", "largest-file", "to 1000000"},
                {"url=ftp://h\nretries=1001", "retries", "to 1000"},
                {"url=ftp://h\nlargest-file=x", "largest-file", "whole number"},
                {"url=ftp://h\nUser=x", "User", "no such key .*user"},
                {"url=ftp://h\nuser=x\\r\\nDELE y", "user", "control character"},
                {"url=ftp://h\npassword=Secret-7\\n", "password", "control character"},
                {"url=ftp://h\npassword=Secret-7\npassword-env=PATH", "password-env", "password too"},
                {"url=ftp://h\npassword-env=ZV_NO_SUCH_VARIABLE", "password-env", "ZV_NO_SUCH_VARIABLE"},
                {"url=ftp://h\ntimeout=0", "timeout", "at least 1"},
                {"url=ftp://h\nretries=-1", "retries", "-1"},
                {"url=ftp://h\nretry-delay=99999999999", "retry-delay", "99999999999"},
                {"url=ftp://h\npassive=yes", "passive", "none of true, false"},
                {"url=ftp://h\nencoding=Klingon", "encoding", "Klingon"},
                {"url=ftps://h\nftps-mode=none", "ftps-mode", "none of explicit, implicit"},
                {"url=ftps://h\nftps-protocols=TLSv1.2, SSLv3", "ftps-protocols", "SSLv3"}};
        for (String[] c : cases) {
            read("url=ftp://h");
            Path file = Files.writeString(folder.getRoot().toPath().resolve("my.properties"), c[0]);
            String text = refused("my.properties', key '" + c[1] + "': .*(" + c[2] + ")",
                    () -> FileServerClientFactory.getInstance().initialize(file.toString())).toString();
            assertFalse(text, text.contains("Secret-7"));
        }
    }

    @Test
    public void allFaultsAreFound() throws IOException {
        String[][] cases = {
                {"url=ftp://h\nretries=2", "[]"},
                {"retries=x\nUser=y\npassword=Secret-7\npassword-env=PATH\npassive=no", "[User, there is no such key "
                        + ".*, url, it is missing, password-env, there is a password too, retries, 'x' is not .*, "
                        + "passive, 'no' is none of true, false]"},
                {"url=ftps://h\nftps-certificates=none.pem", "[ftps-certificates, cannot use .*none.pem.*]"},
                {"user=\\u12", "[, .*wrong escape]"}};
        for (String[] c : cases) {
            Path file = Files.writeString(folder.getRoot().toPath().resolve("my.properties"), c[0]);
            String found = Arrays.toString(FileServerClientFactory.getInstance().findFaults(file.toString()));
            assertTrue(found, found.matches(c[1].replaceFirst("^\\[", "\\\\[")));
            assertFalse(found, found.contains("Secret-7"));
        }
    }

    /** The folder of credentials is made by the build. */
    @Test
    public void secretsComeFromTheProgramOrTheFolderOfCredentials() throws IOException {
        System.setProperty("zv.secret.given", " Secret-7 ");
        System.setProperty("zv.secret.broken", "Secret-7\r\nDELE x");
        try {
            Settings settings = read("url=ftp://h\nuser=${secret:given}\npassword = ${secret:in-folder} ");
            assertEquals("Secret-7,Secret 8 ", settings.user + "," + settings.password);
            assertEquals("********", settings.shownUser());
            assertEquals("no ********, no ********.", Masking.masked("no Secret-7, no Secret 8."));
            assertEquals(" Secret-7 ", read("url=ftp://h\npassword=${secret:given}").password);
            assertEquals("gate", read("url=ftp://h\nuser=gate").shownUser());
            assertEquals("${secret:x", read("url=ftp://h\npassword=${secret:x").password);
            String[][] cases = {
                    {"user=${secret:none}", "user", "'none' was not given, and cannot be read: there is no '.*none'"},
                    {"password=${secret:../in-folder}", "password", "'../in-folder' .*separator"},
                    {"password=${secret:}", "password", "empty"},
                    {"password=${secret:broken}", "password", "control character"},
                    {"password=${secret:given}\npassword-env=PATH", "password-env", "password too"},
                    {"retries=${secret:given}", "retries", "whole number"}};
            for (String[] c : cases) {
                FileServerException failure =
                        assertThrows(FileServerException.class, () -> read("url=ftp://h\n" + c[0]));
                String text = failure.getMessage();
                assertTrue(text, text.matches(".*key '" + c[1] + "': .*(" + c[2] + ").*"));
                assertFalse(text, text.contains("Secret-7"));
            }
        } finally {
            System.clearProperty("zv.secret.given");
            System.clearProperty("zv.secret.broken");
        }
    }

    @Test
    public void aFileThatCannotBeReadIsNamed() throws IOException {
        FileServerClientFactory factory = FileServerClientFactory.getInstance();
        Path file = folder.getRoot().toPath().resolve("my.properties");
        refused("there is no '.*my.properties'", () -> factory.initialize(file.toString()));
        refused("no local name", () -> factory.initialize(""));
        Files.write(file, new byte[] {'u', 's', 'e', 'r', '=', (byte) 0xe4});
        refused("my.properties' is not written in UTF-8", () -> factory.initialize(file.toString()));
        Files.writeString(file, "user=\\u12");
        refused("my.properties' holds a wrong escape", () -> factory.initialize(file.toString()));
    }
}
