package sun.misc;

import java.io.PrintStream;

/** Tells a version that no Java has. */
public final class Version {
    private Version() {}

    public static void print(PrintStream stream) {
        stream.print("java version \"1.4.2_99\"");
    }
}
