package com.vantorel.ep.products.fsclient;

import java.util.ArrayList;
import java.util.List;

/**
 * Creates file-server clients from a configuration file. A singleton; not thread-safe.
 */
public final class FileServerClientFactory {
    private static final FileServerClientFactory INSTANCE = new FileServerClientFactory();

    private Settings settings;

    private FileServerClientFactory() {}

    /** The singleton. */
    public static FileServerClientFactory getInstance() {
        return INSTANCE;
    }

    /**
     * Reads the configuration for clients that are created afterwards. May be called again.
     *
     * @param configPath a properties file, as described by this package's {@code fileserver.properties}
     * @throws FileServerException when the file cannot be read or is invalid, naming the file, the key and
     * the reason
     */
    public void initialize(String configPath) throws FileServerException {
        try {
            settings = Settings.read(LocalFiles.path(configPath));
        } catch (FileServerException e) {
            throw new FileServerException("Cannot configure the file-server client: " + e.getMessage(), e);
        }
    }

    /**
     * Everything that is wrong with a configuration, which is not used: a key and the reason in turn, without
     * a password. The key is empty for what concerns the file itself.
     */
    public String[] findFaults(String configPath) {
        List<String> faults = new ArrayList<>();
        try {
            Settings.faults(LocalFiles.path(configPath)).forEach((key, reason) -> faults.addAll(List.of(key, reason)));
        } catch (FileServerException e) {
            faults.addAll(List.of("", e.getMessage()));
        }
        return faults.toArray(new String[0]);
    }

    /**
     * Creates a client, which is not connected yet.
     *
     * @throws FileServerException when the factory has not been initialized
     */
    public FileServerClient getFileServerClient() throws FileServerException {
        if (settings == null) {
            throw new FileServerException("The file-server client is not configured: call initialize first");
        }
        Transport transport = settings.scheme == Settings.Scheme.FILE ? new LocalTransport(settings.directory)
                                                                      : new FtpTransport(settings);
        return new FileServerClient(settings, transport);
    }
}
