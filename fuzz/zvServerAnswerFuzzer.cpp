// What a server answers: a secret that it repeats in any spelling is masked, and any bytes are shown. The
// lines of the input are the secret, a letter for the spelling of each of its characters, and what stands
// before and after it.
#include "zvEventArguments.h"
#include "zvFuzzSupport.h"
#include "zvSecretValues.h"
#include "zvSecrets.h"
#include "zvServerAnswer.h"
#include "zvUtf8.h"

using zvFuzz::require;

namespace {

std::string formatted(const char* format, unsigned value) {
    char text[16];
    std::snprintf(text, sizeof(text), format, value);
    return text;
}

std::string percentEncoded(const std::string& bytes, const char* format) {
    std::string text;
    for (const char byte : bytes) {
        text += formatted(format, static_cast<unsigned char>(byte));
    }
    return text;
}

char32_t codeOf(const std::u16string& character) {
    return character.size() == 1 ? character[0]
                                 : 0x10000 + ((character[0] & 0x3FFU) << 10U) + (character[1] & 0x3FFU);
}

// The reference implementation of a server that repeats a character.
std::string spelled(const std::u16string& character, char spelling) {
    const std::string bytes = zvUtf8::encode(zvString(character.data(), static_cast<int>(character.size())));
    std::string units;
    switch (spelling) {
        case 'p':
            return percentEncoded(bytes, "%%%02X");
        case 'l':
            return percentEncoded(bytes, "%%%02x");
        case 't':
            return percentEncoded(bytes, "%%25%02X");
        case 'd':
            return formatted("&#%u;", codeOf(character));
        case 'x':
            return formatted("&#x%x;", codeOf(character));
        case 'j':
            for (const char16_t unit : character) {
                units += formatted("\\u%04x", unit);
            }
            return units;
        default:
            return bytes == " " && spelling == '+' ? "+" : bytes;
    }
}

std::string spelledText(const std::u16string& text, const std::string& spellings) {
    std::string result;
    for (std::size_t i = 0, at = 0; at < text.size(); ++i) {
        const std::size_t units = (text[at] & 0xFC00U) == 0xD800U ? 2 : 1;
        result += spelled(text.substr(at, units), spellings.empty() ? 'r' : spellings[i % spellings.size()]);
        at += units;
    }
    return result;
}

void checkMasking(const std::string& secret, const std::vector<std::string>& lines) {
    zvEventArguments arguments(zvEventMirror, "");
    zvString text;
    // The mask itself may be a part of what is searched for.
    const bool isUsable = !secret.empty() && secret.find('*') == std::string::npos &&
                          zvUtf8::decode(secret, text) && !text.empty();
    if (!isUsable || secret.find('\0') != std::string::npos) {
        return;
    }
    arguments.setEventArgument("LoginPassword", text);
    const zvSecretValues secrets(arguments, "http://host/");
    const std::string repeated = spelledText(zvFuzz::unitsOf(text), lines[1]);
    const std::string answer = lines[2] + repeated + lines[3];
    const std::string masked = secrets.masked(answer, answer.size() + 100);
    require(masked.find(repeated) == std::string::npos, "a secret is masked");
    require(masked.find(secret) == std::string::npos, "also as it is");
    const std::size_t limit = std::min(lines[2].size() + 2, lines[3].size());
    require(secrets.masked(answer, limit).size() <= limit, "the limit is kept");
}

void checkShown(const std::string& answer) {
    const zvSecretValues none(zvEventArguments(zvEventMirror, ""), "");
    const std::string shown = zvServerAnswer::shown(answer, answer.size(), none);
    zvString text;
    require(zvUtf8::decode(shown, text), "what is shown is text");
    require(shown.empty() == (answer.find_first_not_of(" \t\r\n") == std::string::npos),
            "all of it is shown");
    for (const char c : shown) {
        require(static_cast<unsigned char>(c) >= ' ' && c != '\x7f', "it has no control characters");
    }
    const bool isValid = answer.find('\0') == std::string::npos && zvUtf8::decode(answer, text);
    require(!isValid || zvUtf8::decodeReplacing(answer) == text, "nothing is replaced without need");
}

void checkUrl(const std::string& account) {
    if (account.find_first_of("@/?#\\*") != std::string::npos || account.find('\0') != std::string::npos) {
        return;
    }
    const std::string url = "http://" + account + "@host/path?query";
    zvString text;
    if (zvUtf8::decode(url, text)) {
        require(zvUtf8::encode(zvSecrets::maskedUrl(text)) == "http://********@host/path?query",
                "an account is masked");
        require(zvUtf8::encode(zvSecrets::accountIn(text)) == account, "an account is found");
    }
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    std::vector<std::string> lines = zvFuzz::linesOf(input);
    lines.resize(std::max<std::size_t>(lines.size(), 4));
    checkMasking(lines[0], lines);
    checkShown(std::string(input));
    checkUrl(lines[0]);
    require(!zvFuzz::secretWasLogged(), "no secret is logged");
}
