#ifndef ZV_JVM_LIBRARY_H
#define ZV_JVM_LIBRARY_H

#include <string>

/// Finds and loads the dynamic library of the Java virtual machine.
struct zvJvmLibrary {
    static constexpr char name[] = "jvm";

    /// Tries the system's search order, then the Java home in JAVA_HOME, then the Java home of each "java"
    /// program on PATH.
    static zvJvmLibrary load();

    /// The library for zvPlatform::findFunction(); null if none could be loaded.
    void* handle = nullptr;
    /// The places that were tried, for the message that no library was found.
    std::string tried;
};

#endif
