#ifndef ZV_JVM_LIBRARY_H
#define ZV_JVM_LIBRARY_H

#include <string>

/// The dynamic library of a Java virtual machine, wherever Java is installed.
struct zvJvmLibrary {
    static constexpr char name[] = "jvm";

    /// Looks in the system's search order, then in the Java home that JAVA_HOME names, then in that of each
    /// "java" program on PATH.
    static zvJvmLibrary load();

    /// For the platform seam; null when there is no library to be loaded.
    void* handle = nullptr;
    /// Where the library was looked for, for a person who has to find out why there is none.
    std::string tried;
};

#endif
