#include "zvConsole.h"

#include <algorithm>
#include <cstdio>

#include "zvCharString.h"
#include "zvPlatform.h"

namespace zvConsole {

std::string printable(const zvString& text) {
    std::string narrow = zvCharString(text).data();
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; };
    std::replace_if(narrow.begin(), narrow.end(), isControl, '?');
    return narrow;
}

std::string printablePath(const zvString& path) { return zvPlatform::nativePath(printable(path).c_str()); }

void step(const char* name) { std::printf("%s\n", name); }

void fact(const std::string& name, const std::string& value) {
    std::printf("  %-22s %s\n", name.c_str(), value.c_str());
    std::fflush(stdout);
}

}  // namespace zvConsole
