#include "zvSecrets.h"

#include <deque>
#include <string>

#include "zvCharString.h"

namespace {

constexpr const char* keys[] = {"LoginPassword", "KPDMPasswd"};

struct AddedKey {
    zvString key;
    std::string narrow;

    bool isIn(const zvString& text) const {
        const int size = key.size();
        return text.size() >= size && text.find(key, 0, size - 1) == 0 &&
               (text.size() == size || text[size] == u'=');
    }
};

// Never destroyed: what is logged at the end of the process is masked as well.
std::deque<AddedKey>& addedKeys() {
    static auto& added = *new std::deque<AddedKey>;
    return added;
}

}  // namespace

void zvSecrets::addKey(const zvString& key) {
    if (!key.empty()) {
        addedKeys().push_back({key, zvCharString(key).data()});
    }
}

const char* zvSecrets::keyIn(const zvString& text) {
    for (const char* const key : keys) {
        if (text.find(key) != -1) {
            return key;
        }
    }
    for (const AddedKey& added : addedKeys()) {
        if (added.isIn(text)) {
            return added.narrow.c_str();
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
