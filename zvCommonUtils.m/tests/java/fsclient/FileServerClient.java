package com.vantorel.ep.products.fsclient;

import java.util.List;

/** A test double of the real client. */
public final class FileServerClient extends ListedOperations {
    @Override
    public void put(String local, String remote) throws Exception {
        String notice = Recorder.answer("notice");
        if (notice != null) {
            Notices.receive(notice);
        }
        super.put(local, remote);
    }

    public boolean mkNewDir(String dir) throws Exception {
        Recorder.record("mkNewDir", dir);
        return !dir.equals(Recorder.answer("exists"));
    }

    public void removeLeftovers(String dir, List<String> localFiles) throws Exception {
        Recorder.record("removeLeftovers", dir, localFiles);
    }

    public void probe() throws Exception {
        Recorder.record("probe");
    }
}
