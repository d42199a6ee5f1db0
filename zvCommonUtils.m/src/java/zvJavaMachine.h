#ifndef ZV_JAVA_MACHINE_H
#define ZV_JAVA_MACHINE_H

#include "zvExport.h"
#include "zvResult.h"
#include "zvString.h"

/// The Java virtual machine that the file-server client runs in, for whoever looks at an installation.
class ZV_EXPORT zvJavaMachine {
public:
    /// Starts it, with the class path in CLASSPATH, unless it runs. The message is its name, version and
    /// folder; of a failure, the reason, and the additional information is where its library was looked for.
    static zvResult start();
    /// The path of its library, which is loaded but not started; empty if there is none.
    static zvString library();
    /// Ends it, if this library has started it: a process can have no other one afterwards. zvFSClient must
    /// not have an instance any more.
    static void end();
    /// Looks for a class by its dotted name; start() has to have succeeded. The message is the jar, or the
    /// folder, that it comes from; of a failure, Java's reason.
    static zvResult findClass(const zvString& name);
};

#endif
