#include "zvArgumentTexts.h"

#include "zvCharString.h"
#include "zvConsole.h"
#include "zvSecrets.h"
#include "zvUtf8.h"

std::string zvArgumentTexts::add(const std::string& key, const std::string& value) {
    zvString name;
    zvString text;
    if (!zvUtf8::decode(key, name) || !zvUtf8::decode(value, text)) {
        return "its bytes are not UTF-8";
    }
    const std::string shown = "\"" + zvConsole::printable(zvSecrets::maskedKey(name)) + "\" ";
    if (name.empty() || name[name.size() - 1] == u'\\') {
        return name.empty() ? "a key is empty" : "the key " + shown + "ends with a backslash";
    }
    if (key.find('\0') != std::string::npos || value.find('\0') != std::string::npos) {
        return "the argument " + shown + "has a null character";
    }
    name.replace("=", "\\=");
    const zvString argument = name + "=" + text;
    std::string narrow = zvCharString(argument).data();
    if (zvString(narrow.c_str()) != argument) {
        return "the argument " + shown +
               "has a character that the locale's encoding lacks: run the program in a UTF-8 locale";
    }
    m_texts.push_back(std::move(narrow));
    return "";
}
