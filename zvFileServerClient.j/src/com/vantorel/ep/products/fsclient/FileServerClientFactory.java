package com.vantorel.ep.products.fsclient;

/**
 * Makes file-server clients from a configuration file. There is one factory in a process; it serves one thread at a
 * time.
 */
public final class FileServerClientFactory {
    private static final FileServerClientFactory INSTANCE = new FileServerClientFactory();

    private Settings settings;

    private FileServerClientFactory() {}

    /** The one factory. */
    public static FileServerClientFactory getInstance() {
        return INSTANCE;
    }

    /**
     * Reads the configuration for the clients that are made from now on. May be called again.
     *
     * @param configPath a properties file, as described by this package's {@code fileserver.properties}
     * @throws FileServerException when it cannot be read or is wrong, naming the file, the key and the reason
     */
    public void initialize(String configPath) throws FileServerException {
        try {
            settings = Settings.read(LocalFiles.path(configPath));
        } catch (FileServerException e) {
            throw new FileServerException("Cannot configure the file-server client: " + e.getMessage(), e);
        }
    }

    /**
     * Makes a client. It is not yet connected.
     *
     * @throws FileServerException when the factory has not been initialized
     */
    public FileServerClient getFileServerClient() throws FileServerException {
        if (settings == null) {
            throw new FileServerException("The file-server client is not configured: initialize comes first");
        }
        Transport transport = settings.scheme == Settings.Scheme.FILE ? new LocalTransport(settings.directory)
                                                                      : new FtpTransport(settings);
        return new FileServerClient(settings.url, transport,
                new Retry(transport, settings.retries, settings.retryDelay));
    }
}
