package com.vantorel.ep.products.fsclient;

import java.io.BufferedInputStream;
import java.io.BufferedOutputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.nio.channels.Channels;
import java.nio.channels.FileChannel;
import java.nio.file.DirectoryIteratorException;
import java.nio.file.DirectoryStream;
import java.nio.file.FileSystemException;
import java.nio.file.Files;
import java.nio.file.LinkOption;
import java.nio.file.NoSuchFileException;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.nio.file.StandardOpenOption;
import java.nio.file.attribute.BasicFileAttributes;
import java.util.Set;
import java.util.SortedMap;
import java.util.TreeMap;
import org.apache.commons.net.io.FromNetASCIIInputStream;
import org.apache.commons.net.io.ToNetASCIIOutputStream;

/**
 * A directory of this host as file server.
 *
 * <p>Symlinks below the root are not followed: an operation on one is refused. In ASCII mode, line ends are
 * converted to those of this host in both directions, as between two FTP hosts of the same system.
 */
final class LocalTransport implements Transport {
    private final Path directory;
    private Path root;

    LocalTransport(Path directory) {
        this.directory = directory;
    }

    @Override
    public void connect() throws FileServerException {
        if (!Files.isDirectory(directory)) {
            throw new FileServerException("there is no directory '" + directory + "'");
        }
        if (root == null) {
            root = attempt(directory::toRealPath);
        }
    }

    @Override
    public void disconnect() {
        root = null;
    }

    @Override
    public Kind kind(RemotePath path) throws FileServerException {
        Path file = resolve(path);
        return attempt(() -> kind(file));
    }

    @Override
    public long size(RemotePath file) throws FileServerException {
        Path path = regularFile(file);
        return attempt(() -> Files.size(path));
    }

    @Override
    public SortedMap<String, Kind> list(RemotePath directory) throws FileServerException {
        Path path = resolve(directory);
        return attempt(() -> {
            SortedMap<String, Kind> names = new TreeMap<>();
            try (DirectoryStream<Path> entries = Files.newDirectoryStream(path)) {
                for (Path entry : entries) {
                    names.put(entry.getFileName().toString(), kind(entry));
                }
            }
            // An entry may have been deleted since the directory was read.
            names.values().removeIf(Kind.ABSENT::equals);
            return names;
        });
    }

    @Override
    public Set<String> listHidden(RemotePath directory) throws FileServerException {
        return list(directory).keySet();
    }

    @Override
    public void receive(RemotePath source, TransferMode mode, OutputStream target) throws FileServerException {
        Path file = regularFile(source);
        attempt(() -> {
            try (InputStream content = Files.newInputStream(file, LinkOption.NOFOLLOW_LINKS)) {
                return copy(content, target, mode);
            }
        });
    }

    @Override
    public void send(LocalSource source, TransferMode mode, RemotePath target) throws FileServerException {
        requireDirectory(target.parent());
        Path file = resolve(target);
        attempt(() -> {
            try (FileChannel channel = FileChannel.open(file, Set.of(StandardOpenOption.CREATE,
                    StandardOpenOption.WRITE, LinkOption.NOFOLLOW_LINKS))) {
                channel.truncate(source.offset()).position(source.offset());
                copy(source, Channels.newOutputStream(channel), mode);
                // On disk before it is renamed, since the sender may delete its file after that.
                channel.force(false);
                return null;
            }
        });
    }

    @Override
    public LineEnds lineEnds() {
        return LineEnds.ofThisHost();
    }

    @Override
    public void makeDirectory(RemotePath directory) throws FileServerException {
        Path path = resolve(directory);
        attempt(() -> Files.createDirectory(path));
    }

    @Override
    public void rename(RemotePath from, RemotePath to) throws FileServerException {
        Path source = resolve(from);
        Path target = resolve(to);
        attempt(() -> Files.move(source, target, StandardCopyOption.ATOMIC_MOVE, StandardCopyOption.REPLACE_EXISTING));
    }

    @Override
    public void delete(RemotePath file) throws FileServerException {
        Path path = regularFile(file);
        attempt(() -> {
            Files.delete(path);
            return null;
        });
    }

    /** The path of a name below the root; refuses symlinks in any component. */
    private Path resolve(RemotePath name) throws FileServerException {
        Path path = root;
        for (String component : name.components()) {
            path = LocalFiles.child(path, component);
            if (Files.isSymbolicLink(path)) {
                throw new FileServerException("'" + path + "' is a symbolic link, which is not followed");
            }
        }
        return path;
    }

    private Path regularFile(RemotePath name) throws FileServerException {
        Kind kind = kind(name);
        if (kind != Kind.FILE) {
            throw new FileServerException(kind == Kind.ABSENT ? "there is no file '" + name + "' on the file server"
                                                              : "'" + name + "' is not a regular file");
        }
        return resolve(name);
    }

    private void requireDirectory(RemotePath name) throws FileServerException {
        if (kind(name) != Kind.DIRECTORY) {
            throw new FileServerException("there is no directory '" + name + "' on the file server");
        }
    }

    private static Kind kind(Path path) throws IOException {
        try {
            BasicFileAttributes attributes =
                    Files.readAttributes(path, BasicFileAttributes.class, LinkOption.NOFOLLOW_LINKS);
            return attributes.isDirectory() ? Kind.DIRECTORY : attributes.isRegularFile() ? Kind.FILE : Kind.OTHER;
        } catch (NoSuchFileException e) {
            return Kind.ABSENT;
        } catch (FileSystemException e) {
            // A path below a regular file is absent, although the system reports an error.
            if (Files.isDirectory(path.getParent())) {
                throw e;
            }
            return Kind.ABSENT;
        }
    }

    private static long copy(InputStream source, OutputStream target, TransferMode mode) throws IOException {
        if (mode == TransferMode.BINARY) {
            return source.transferTo(target);
        }
        // The conversion reads a byte at a time.
        InputStream text = new FromNetASCIIInputStream(new BufferedInputStream(source));
        if (LineEnds.ofThisHost() == LineEnds.LF) {
            return text.transferTo(target);
        }
        // On this system, CRLF is kept and a bare LF becomes CRLF.
        BufferedOutputStream buffer = new BufferedOutputStream(target);
        long count = text.transferTo(new ToNetASCIIOutputStream(buffer));
        buffer.flush();
        return count;
    }

    private interface Action<T> {
        T run() throws IOException;
    }

    private static <T> T attempt(Action<T> action) throws FileServerException {
        try {
            return action.run();
        } catch (DirectoryIteratorException e) {
            throw LocalFiles.failure(e.getCause());
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }
}
