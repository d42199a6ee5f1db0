#include "zvSecrets.h"

namespace {

constexpr const char* keys[] = {"LoginPassword", "KPDMPasswd"};

}  // namespace

const char* zvSecrets::keyIn(const zvString& text) {
    for (const char* const key : keys) {
        if (text.find(key) != -1) {
            return key;
        }
    }
    return nullptr;
}

zvString zvSecrets::maskedArgument(const zvString& argument) {
    const char* const key = keyIn(argument);
    return key == nullptr ? argument : zvString(key) + "=" + mask;
}

zvString zvSecrets::maskedKey(const zvString& key) {
    const char* const secret = keyIn(key);
    return secret == nullptr ? key : zvString(secret);
}

zvString zvSecrets::maskedValue(const zvString& key, const zvString& value) {
    return keyIn(key) == nullptr && keyIn(value) == nullptr ? value : zvString(mask);
}
