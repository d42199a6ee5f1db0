#ifndef ZV_SECRETS_H
#define ZV_SECRETS_H

#include "zvString.h"

/// The one list of argument keys whose values no log, console or error text may show.
namespace zvSecrets {

constexpr const char* keys[] = {"LoginPassword", "KPDMPasswd"};
constexpr char mask[] = "********";

/// The first of the keys that `text` holds anywhere; null when it holds none.
inline const char* keyIn(const zvString& text) {
    for (const char* const key : keys) {
        if (text.find(key) != -1) {
            return key;
        }
    }
    return nullptr;
}

/// A whole argument as it may be shown: one that mentions a key becomes that key and the mask.
inline zvString maskedArgument(const zvString& argument) {
    const char* const key = keyIn(argument);
    return key == nullptr ? argument : zvString(key) + "=" + mask;
}

/// The value of the argument `key` as it may be shown.
inline zvString maskedValue(const zvString& key, const zvString& value) {
    return keyIn(key) == nullptr && keyIn(value) == nullptr ? value : zvString(mask);
}

}  // namespace zvSecrets

#endif
