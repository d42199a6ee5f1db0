package com.vantorel.ep.products.fsclient;

import java.util.List;

/** What every client has, as a test double. */
abstract class ListedOperations {
    public void connect() throws Exception {
        Recorder.record("connect");
    }

    public void disconnect() throws Exception {
        Recorder.record("disconnect");
    }

    public void get(String remote, String local) throws Exception {
        Recorder.record("get", remote, local);
    }

    public void get(String remoteDir, String localDir, List<String> files) throws Exception {
        Recorder.record("get", remoteDir, localDir, files);
    }

    public void get(String remoteDir, String localDir, String filter) throws Exception {
        Recorder.record("get", remoteDir, localDir, filter);
    }

    public void put(String local, String remote) throws Exception {
        Recorder.record("put", local, remote);
    }

    public void put(String localDir, String remoteDir, List<String> files) throws Exception {
        Recorder.record("put", localDir, remoteDir, files);
    }

    public void put(String localDir, String remoteDir, String filter) throws Exception {
        Recorder.record("put", localDir, remoteDir, filter);
    }

    public void mkDir(String dir) throws Exception {
        Recorder.record("mkDir", dir);
    }

    public boolean exists(String path) throws Exception {
        Recorder.record("exists", path);
        return path.equals(Recorder.answer("exists"));
    }

    public String[] list(String dir) throws Exception {
        Recorder.record("list", dir);
        String names = Recorder.answer("list");
        return names == null ? null : names.split("\\|");
    }

    public void setFileTransferMode(int code) throws Exception {
        Recorder.record("setFileTransferMode", code);
    }

    @Override
    public String toString() {
        if (Recorder.answer("speechless") != null) {
            throw new IllegalStateException();
        }
        return "the client";
    }
}
