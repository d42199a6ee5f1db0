package sun.misc;

import java.io.PrintStream;

/** A test double that prints a fictitious version. */
public final class Version {
    private Version() {}

    public static void print(PrintStream stream) {
        stream.print("java version \"1.4.2_99\"");
    }
}
