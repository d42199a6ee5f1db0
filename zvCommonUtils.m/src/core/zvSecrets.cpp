#include "zvSecrets.h"

#include <deque>
#include <string>

#include "zvCharString.h"

namespace {

constexpr const char* keys[] = {"LoginPassword", "KPDMPasswd"};

struct AddedKey {
    zvString key;
    std::string narrow;

    // A backslash before a "=" of the key puts it there, and counts as it does in arguments: not.
    bool isIn(const zvString& text) const {
        int at = 0;
        for (int i = 0; i < key.size(); ++i, ++at) {
            if (key[i] == u'=' && at + 1 < text.size() && text[at] == u'\\' && text[at + 1] == u'=') {
                ++at;
            }
            if (at >= text.size() || text[at] != key[i]) {
                return false;
            }
        }
        return at == text.size() || text[at] == u'=';
    }
};

// The account of a URL in a text, from its first character to the "@" behind it; `end` is -1 if there is
// none.
struct Account {
    int begin = 0;
    int end = -1;
};

int lastIn(const zvString& text, wchar16 character, int begin, int end) {
    while (end-- > begin) {
        if (text[end] == character) {
            return end;
        }
    }
    return -1;
}

bool isEndOfAuthority(wchar16 c) { return c == u'/' || c == u'?' || c == u'#'; }

Account findAccount(const zvString& text) {
    const int slashes = text.find("//");
    // Without a scheme, in a line of a properties file.
    const int begin = slashes >= 0 ? slashes + 2 : text.find("=") + 1;
    int end = begin;
    while (end < text.size() && !isEndOfAuthority(text[end])) {
        ++end;
    }
    int at = lastIn(text, u'@', begin, end);
    if (at < 0 && begin < end && text[begin] != u'[' && lastIn(text, u':', begin, end) >= 0) {
        // What looks like a port may be the beginning of a password with a "/" in it.
        at = lastIn(text, u'@', end, text.size());
    }
    const bool isAccount = slashes >= 0 || lastIn(text, u':', begin, at) >= 0;
    return {begin, isAccount ? at : -1};
}

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

zvString zvSecrets::accountIn(const zvString& url) {
    const Account account = findAccount(url);
    return account.end < 0 ? zvString() : url.substr(account.begin, account.end - account.begin);
}

zvString zvSecrets::maskedUrl(const zvString& text) {
    const Account account = findAccount(text);
    return account.end < 0
               ? text
               : text.substr(0, account.begin) + mask + text.substr(account.end, text.size() - account.end);
}
