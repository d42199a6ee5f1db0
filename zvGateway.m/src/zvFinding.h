#ifndef ZV_FINDING_H
#define ZV_FINDING_H

#include <string>

/// Something that is wrong with a configuration. The texts are printable.
struct zvFinding {
    enum class Severity { error, warning };

    Severity severity;
    /// The object, lifecycle or collection with its names; empty when `what` names it.
    std::string where;
    std::string what;
};

#endif
