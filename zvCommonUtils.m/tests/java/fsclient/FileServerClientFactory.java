package com.vantorel.ep.products.fsclient;

/** A test double of the real factory. */
public final class FileServerClientFactory {
    public static FileServerClientFactory getInstance() {
        return new FileServerClientFactory();
    }

    public void initialize(String configPath) throws Exception {
        Recorder.open(configPath);
        Recorder.record("initialize", configPath);
    }

    public FileServerClient getFileServerClient() throws Exception {
        Recorder.record("getFileServerClient");
        return Recorder.answer("noClient") == null ? new FileServerClient() : null;
    }

    @Override
    public String toString() {
        return "the factory";
    }
}
