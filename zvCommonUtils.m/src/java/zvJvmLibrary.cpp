#include "zvJvmLibrary.h"

#include <filesystem>
#include <sstream>
#include <system_error>

#include "zvPlatform.h"

namespace fs = std::filesystem;

namespace {

// The library's possible paths relative to the Java home; in a JDK before Java 9 it is in the subdirectory
// "jre".
constexpr const char* files[] = {"lib/server/libjvm.so",
                                 "jre/lib/amd64/server/libjvm.so",
                                 "jre/lib/aarch64/server/libjvm.so",
                                 "jre/lib/i386/server/libjvm.so",
                                 "lib/amd64/server/libjvm.so",
                                 "lib/aarch64/server/libjvm.so",
                                 "lib/i386/server/libjvm.so",
                                 "bin/server/jvm.dll",
                                 "bin/client/jvm.dll",
                                 "jre/bin/server/jvm.dll",
                                 "jre/bin/client/jvm.dll"};

constexpr const char* programs[] = {"java", "java.exe"};

void loadFrom(const fs::path& home, zvJvmLibrary& library) {
    for (const char* const file : files) {
        const fs::path path = home / file;
        std::error_code ignored;
        if (library.handle == nullptr && fs::exists(path, ignored)) {
            const std::string text = zvPlatform::textOf(path);
            library.handle = zvPlatform::loadLibrary(text.c_str());
            library.tried +=
                " (where " + text + (library.handle == nullptr ? " cannot be loaded)" : " was found)");
        }
    }
}

void loadFromPath(zvJvmLibrary& library) {
    constexpr char separator = fs::path::preferred_separator == '/' ? ':' : ';';
    std::istringstream folders(zvPlatform::environment("PATH"));
    for (std::string folder; library.handle == nullptr && std::getline(folders, folder, separator);) {
        for (const char* const program : programs) {
            // The program on PATH is usually a symlink into the Java home.
            std::error_code error;
            const fs::path java =
                folder.empty() ? fs::path() : fs::canonical(zvPlatform::pathOf(folder) / program, error);
            if (!error && java.has_filename()) {
                const fs::path home = java.parent_path().parent_path();
                library.tried += "; the home of a java on PATH: " + zvPlatform::textOf(home);
                loadFrom(home, library);
            }
        }
    }
}

}  // namespace

zvJvmLibrary zvJvmLibrary::load() {
    zvJvmLibrary library;
    library.tried = "the system's search order";
    library.handle = zvPlatform::loadLibrary(name);
    if (library.handle != nullptr) {
        return library;
    }
    const std::string home = zvPlatform::environment("JAVA_HOME");
    library.tried += home.empty() ? "; JAVA_HOME, which is not set" : "; JAVA_HOME: " + home;
    if (!home.empty()) {
        loadFrom(zvPlatform::pathOf(home), library);
    }
    if (library.handle == nullptr) {
        library.tried += "; PATH";
        loadFromPath(library);
    }
    return library;
}
