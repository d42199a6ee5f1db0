package com.vantorel.ep.products.fsclient;

import java.nio.file.Path;
import java.util.HashSet;
import java.util.Set;

/** Removes the temporary files that interrupted transfers have left in a directory of the file server. */
final class Leftovers {
    private final Transport transport;
    private final RemotePath directory;
    private final long resumeFrom;
    private final Set<String> kept = new HashSet<>();

    /**
     * @param resumeFrom the size in bytes above which a file is continued
     */
    Leftovers(Transport transport, RemotePath directory, long resumeFrom) {
        this.transport = transport;
        this.directory = directory;
        this.resumeFrom = resumeFrom;
    }

    /** Keeps the incomplete file, if any, which the binary upload of a file of this host would continue. */
    void keepFor(Path source) throws FileServerException {
        SourceVersion version = SourceVersion.of(source);
        if (version.size() > resumeFrom) {
            kept.add(version.partName(directory.child(source.getFileName().toString())));
        }
    }

    /** Removes the others. What the server does not let go is told and no failure. */
    void remove() throws FileServerException {
        if (transport.kind(directory) != Transport.Kind.DIRECTORY) {
            return;
        }
        for (String name : names()) {
            if (TemporaryName.matches(name) && !kept.contains(name)) {
                unlessRefused("remove the incomplete file '" + name + "' in '" + directory + "'",
                        () -> transport.delete(directory.child(name)));
            }
        }
    }

    private Set<String> names() throws FileServerException {
        Set<String> names = new HashSet<>();
        unlessRefused("look for incomplete files in '" + directory + "'",
                () -> names.addAll(transport.listHidden(directory)));
        return names;
    }

    private static void unlessRefused(String what, Step step) throws BrokenConnectionException {
        try {
            step.run();
        } catch (BrokenConnectionException e) {
            throw e;
        } catch (FileServerException e) {
            Notices.tell("Cannot " + what + ": " + e.getMessage());
        }
    }

    private interface Step {
        void run() throws FileServerException;
    }
}
