#include "zvServerAnswer.h"

#include <algorithm>

#include "zvConsole.h"
#include "zvUtf8.h"

namespace {

constexpr std::size_t shownBytes = 200;

// Blanks and line ends become one blank each, and none at both ends.
std::string onOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    if (!line.empty() && line.back() == ' ') {
        line.pop_back();
    }
    return line;
}

// In a locale that lacks a character, that one alone is replaced.
std::string printable(const zvString& text) {
    std::string shown = zvConsole::printable(text);
    if (!shown.empty()) {
        return shown;
    }
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = (text[i] & 0xFC00U) == 0xD800U && i + 1 < text.size();
        const std::string character = zvConsole::printable(text.substr(i, isPair ? 2 : 1));
        shown += character.empty() ? "?" : character;
        i += isPair ? 1 : 0;
    }
    return shown;
}

}  // namespace

zvServerAnswer::zvServerAnswer(const zvSecretValues& secrets)
    : m_secrets(secrets), m_limit(shownBytes + secrets.longest()), m_sink{take, this} {}

std::string zvServerAnswer::text() const { return shown(m_beginning, shownBytes, m_secrets); }

std::string zvServerAnswer::shown(std::string_view text, std::size_t limit, const zvSecretValues& secrets) {
    return printable(zvUtf8::decodeReplacing(onOneLine(secrets.masked(text, limit))));
}

std::size_t zvServerAnswer::take(char* data, std::size_t size, std::size_t count, void* sink) {
    auto& answer = *static_cast<zvServerAnswer*>(static_cast<WriteMemoryCallbackWrapper*>(sink)->m_pUserData);
    answer.m_beginning.append(data, std::min(size * count, answer.m_limit - answer.m_beginning.size()));
    return size * count;
}
