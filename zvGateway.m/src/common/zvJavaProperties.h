#ifndef ZV_JAVA_PROPERTIES_H
#define ZV_JAVA_PROPERTIES_H

#include <string>
#include <vector>

#include "zvFinding.h"

/// The entries of a properties file as Java reads it, in UTF-8.
struct zvJavaProperties {
    struct Entry {
        zvString name;
        zvString value;
        zvTextPosition position;
    };

    /// In the order of the file; a key that is repeated is there again.
    static std::vector<Entry> entriesOf(const std::string& content);
};

#endif
