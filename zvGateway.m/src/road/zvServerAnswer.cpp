#include "zvServerAnswer.h"

#include <algorithm>
#include <string_view>

#include "zvConsole.h"

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

}  // namespace

zvServerAnswer::zvServerAnswer(const zvSecretValues& secrets)
    : m_secrets(secrets), m_limit(shownBytes + secrets.longest()), m_sink{take, this} {}

std::string zvServerAnswer::text() const {
    return zvConsole::printable(onOneLine(m_secrets.masked(m_beginning, shownBytes)).c_str());
}

std::size_t zvServerAnswer::take(char* data, std::size_t size, std::size_t count, void* sink) {
    auto& answer = *static_cast<zvServerAnswer*>(static_cast<WriteMemoryCallbackWrapper*>(sink)->m_pUserData);
    answer.m_beginning.append(data, std::min(size * count, answer.m_limit - answer.m_beginning.size()));
    return size * count;
}
