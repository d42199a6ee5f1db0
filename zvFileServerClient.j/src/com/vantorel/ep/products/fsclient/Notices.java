package com.vantorel.ep.products.fsclient;

/**
 * What happens during an operation without ending it, for the people who wait for it: retries, resumed
 * uploads, text that arrived with other line ends, how far a file is. The program that loads this class into its process may
 * register native methods to receive the texts, and to cancel an operation; otherwise nobody does.
 */
final class Notices {
    /** Receives the notices instead of the program. */
    interface Listener {
        void notice(String text);

        default void progress(String file, long bytes, long total) {}
    }

    /** Null for the program. */
    static Listener listener;

    /** Whether the program may have registered a method that tells. */
    private static boolean asksProgram = true;

    /** Whether the program may have registered a method that receives progress. */
    private static boolean tellsProgress = true;

    private Notices() {}

    /** Passes on a text of one line: control characters become blanks. */
    static void tell(String text) {
        String line = printable(Masking.maskedMessage(text));
        if (listener != null) {
            listener.notice(line);
            return;
        }
        try {
            receive(line);
        } catch (UnsatisfiedLinkError e) {
            // The program does not want to know.
        }
    }

    private static native void receive(String text);

    /** Passes on how far the transfer of a local file is; the total may be {@link Transport#UNKNOWN_SIZE}. */
    static void tellProgress(String file, long bytes, long total) {
        if (listener != null) {
            listener.progress(file, bytes, total);
        } else if (tellsProgress) {
            try {
                receiveProgress(file, bytes, total);
            } catch (UnsatisfiedLinkError e) {
                tellsProgress = false;
            }
        }
    }

    private static native void receiveProgress(String file, long bytes, long total);

    /** Ends an operation that the program no longer wants. */
    static void throwIfCancelled() throws CancelledException {
        if (asksProgram) {
            try {
                if (isCancelled()) {
                    throw new CancelledException();
                }
            } catch (UnsatisfiedLinkError e) {
                asksProgram = false;
            }
        }
    }

    private static native boolean isCancelled();

    private static String printable(String text) {
        char[] characters = text.toCharArray();
        for (int i = 0; i < characters.length; ++i) {
            if (Character.isISOControl(characters[i])) {
                characters[i] = ' ';
            }
        }
        return new String(characters);
    }
}
