package com.vantorel.ep.products.fsclient;

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
            try {
                root = directory.toRealPath();
            } catch (IOException e) {
                throw LocalFiles.failure(e);
            }
        }
    }

    @Override
    public void disconnect() {
        root = null;
    }

    @Override
    public Kind kind(RemotePath path) throws FileServerException {
        Path file = resolve(path);
        try {
            return kind(file);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public long size(RemotePath file) throws FileServerException {
        Path path = regularFile(file);
        try {
            return Files.size(path);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public SortedMap<String, Kind> list(RemotePath directory) throws FileServerException {
        Path path = resolve(directory);
        SortedMap<String, Kind> names = new TreeMap<>();
        try (DirectoryStream<Path> entries = Files.newDirectoryStream(path)) {
            for (Path entry : entries) {
                Kind kind = kind(entry);
                // An entry may have been deleted since the directory was read.
                if (kind != Kind.ABSENT) {
                    names.put(entry.getFileName().toString(), kind);
                }
            }
        } catch (DirectoryIteratorException e) {
            throw LocalFiles.failure(e.getCause());
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
        return names;
    }

    @Override
    public Set<String> listHidden(RemotePath directory) throws FileServerException {
        return list(directory).keySet();
    }

    @Override
    public void receive(RemotePath source, TransferMode mode, OutputStream target) throws FileServerException {
        Path file = regularFile(source);
        try (InputStream content = Files.newInputStream(file, LinkOption.NOFOLLOW_LINKS)) {
            copy(content, target, mode);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public void send(LocalSource source, TransferMode mode, RemotePath target) throws FileServerException {
        requireDirectory(target.parent());
        Path file = resolve(target);
        try (FileChannel channel = FileChannel.open(file, Set.of(StandardOpenOption.CREATE,
                StandardOpenOption.WRITE, LinkOption.NOFOLLOW_LINKS))) {
            channel.truncate(source.offset()).position(source.offset());
            copy(source, Channels.newOutputStream(channel), mode);
            // On disk before it is renamed, since the sender may delete its file after that.
            channel.force(false);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public LineEnds lineEnds() {
        return LineEnds.ofThisHost();
    }

    @Override
    public void makeDirectory(RemotePath directory) throws FileServerException {
        Path path = resolve(directory);
        try {
            Files.createDirectory(path);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public void rename(RemotePath from, RemotePath to) throws FileServerException {
        Path source = resolve(from);
        Path target = resolve(to);
        try {
            Files.move(source, target, StandardCopyOption.ATOMIC_MOVE, StandardCopyOption.REPLACE_EXISTING);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
    }

    @Override
    public void delete(RemotePath file) throws FileServerException {
        Path path = regularFile(file);
        try {
            Files.delete(path);
        } catch (IOException e) {
            throw LocalFiles.failure(e);
        }
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

    private static void copy(InputStream source, OutputStream target, TransferMode mode) throws IOException {
        if (mode == TransferMode.BINARY) {
            source.transferTo(target);
        } else {
            LocalText.copy(source, target);
        }
    }
}
