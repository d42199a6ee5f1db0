#ifndef ZV_ARGUMENT_VALUE_H
#define ZV_ARGUMENT_VALUE_H

#include <string>
#include <vector>

/// The value of the first of the arguments, `key=value` each, that has this key, in which no "=" stands;
/// empty if there is none.
inline std::string argumentValue(const std::vector<std::string>& arguments, const std::string& key) {
    for (const std::string& argument : arguments) {
        if (argument.compare(0, key.size() + 1, key + "=") == 0) {
            return argument.substr(key.size() + 1);
        }
    }
    return "";
}

#endif
