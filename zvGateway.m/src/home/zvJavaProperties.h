#ifndef ZV_JAVA_PROPERTIES_H
#define ZV_JAVA_PROPERTIES_H

#include <string>
#include <vector>

#include "zvFinding.h"

/// The keys of a properties file as Java reads it, in UTF-8.
struct zvJavaProperties {
    struct Key {
        zvString name;
        zvTextPosition position;
    };

    /// In the order of the file; a repeated key is there again.
    static std::vector<Key> keysOf(const std::string& content);
};

#endif
