package com.vantorel.ep.products.fsclient;

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
        return new FileServerClient(settings.url, transport,
                new Retry(transport, settings.retries, settings.retryDelay), settings.resumeFrom);
    }
}
