package com.vantorel.ep.products.fsclient;

import static com.vantorel.ep.products.fsclient.TestFiles.fill;
import static com.vantorel.ep.products.fsclient.TestFiles.refused;
import static com.vantorel.ep.products.fsclient.TestFiles.tree;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** Tests only for a directory as file server. */
public class LocalDirectoryTest {
    @Rule
    public TemporaryFolder folder = new TemporaryFolder();

    @Test
    public void noSymbolicLinkBelowTheRootIsFollowed() throws IOException {
        Path home = folder.getRoot().toPath();
        Path outside = folder.newFolder("outside").toPath();
        Path local = folder.newFolder("local").toPath();
        Path root = folder.newFolder("root").toPath();
        fill(outside, "secret");
        fill(root, "plain");
        Files.createSymbolicLink(root.resolve("dir"), outside);
        Files.createSymbolicLink(root.resolve("file"), outside.resolve("secret"));
        Files.createSymbolicLink(root.resolve("dangling"), outside.resolve("new"));
        Path rootLink = Files.createSymbolicLink(home.resolve("link to root"), root);
        FileServerClient client = TestServer.connect(home, rootLink.toUri().toString());
        String file = local.resolve("f").toString();

        client.get("", local.toString(), "*");
        assertEquals("{plain=plain}", tree(local).toString());
        assertArrayEquals(new String[] {"dangling", "dir", "file", "plain"}, client.list(""));
        for (String name : new String[] {"file", "dangling", "dir/secret", "dir/new"}) {
            refused("symbolic link", () -> client.get(name, file));
            refused("symbolic link", () -> client.put(local.resolve("plain").toString(), name));
            refused("symbolic link", () -> client.exists(name));
        }
        refused("symbolic link", () -> client.list("dir"));
        refused("symbolic link", () -> client.mkDir("dir/new"));
        assertEquals("{secret=secret}", tree(outside).toString());
        assertEquals("{plain=plain}", tree(local).toString());
    }

    @Test
    public void aLocalPathHasEitherSeparator() throws IOException {
        Path home = folder.getRoot().toPath();
        Path local = folder.newFolder("local", "sub").toPath().getParent();
        Path root = folder.newFolder("root").toPath();
        fill(root, "plain");
        FileServerClient client = TestServer.connect(home, root.toUri().toString());

        client.get("plain", local + "\\sub\\copy");
        client.put(local + "\\sub/copy", "again");
        client.put(local + "\\sub\\", "", "c*");
        assertEquals("{sub/copy=plain}", tree(local).toString());
        assertEquals("{again=plain, copy=plain, plain=plain}", tree(root).toString());
    }

    @Test
    public void theRootMustExist() throws IOException {
        Path home = folder.getRoot().toPath();
        String url = home.resolve("none").toUri().toString();
        refused("there is no directory '.*none'", () -> TestServer.connect(home, url));
    }
}
