#include "zvSpelledCharacter.h"

#include <algorithm>
#include <string>

namespace {

constexpr char32_t firstBeyondAscii = 0x80;
constexpr char32_t firstBeyondLatin1 = 0x100;
constexpr char32_t firstOfPairs = 0x10000;
constexpr std::size_t none = std::string_view::npos;

constexpr struct {
    char32_t character;
    std::string_view text;
} names[] = {
    {U'&', "&amp;"},  {U'<', "&lt;"},   {U'>', "&gt;"}, {U'"', "&quot;"}, {U'\'', "&apos;"},
    {U'\n', "\\n"},   {U'\r', "\\r"},   {U'\t', "\\t"}, {U'\b', "\\b"},   {U'\f', "\\f"},
    {0xA0, "&nbsp;"}, {U' ', "&nbsp;"}, {U' ', "+"},
};

bool startsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

std::string utf8(char32_t character) {
    const auto tail = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    const auto lead = [character](unsigned mark, unsigned shift) {
        return static_cast<char>(mark | (character >> shift));
    };
    if (character < firstBeyondAscii) {
        return {static_cast<char>(character)};
    }
    if (character < 0x800) {
        return {lead(0xC0, 6), tail(0)};
    }
    return character < firstOfPairs ? std::string{lead(0xE0, 12), tail(6), tail(0)}
                                    : std::string{lead(0xF0, 18), tail(12), tail(6), tail(0)};
}

// Bytes that were taken for characters of Latin-1 and encoded again.
std::string encodedTwice(const std::string& bytes) {
    std::string result;
    for (const char byte : bytes) {
        result += utf8(static_cast<unsigned char>(byte));
    }
    return result;
}

int digitOf(char c) {
    constexpr std::string_view lower = "0123456789abcdef";
    constexpr std::string_view upper = "0123456789ABCDEF";
    const std::size_t found = std::min(lower.find(c), upper.find(c));
    return found == none ? -1 : static_cast<int>(found);
}

// The length of a number of at most `most` digits that has this value; 0 if there is none.
std::size_t lengthOfNumber(std::string_view text, unsigned base, std::size_t most, char32_t value) {
    char32_t number = 0;
    std::size_t length = 0;
    while (length < std::min(most, text.size()) && digitOf(text[length]) >= 0 &&
           digitOf(text[length]) < static_cast<int>(base)) {
        number = number * base + static_cast<char32_t>(digitOf(text[length++]));
    }
    return number == value ? length : 0;
}

// `introduction` and exactly `digits` hexadecimal digits; 0 if they are not there.
std::size_t lengthOfEscape(std::string_view text, std::string_view introduction, std::size_t digits,
                           char32_t value) {
    if (!startsWith(text, introduction)) {
        return 0;
    }
    const std::size_t length = lengthOfNumber(text.substr(introduction.size()), 16, digits, value);
    return length == digits ? introduction.size() + digits : 0;
}

std::size_t lengthOfPercentEncoded(std::string_view text, const std::string& bytes,
                                   std::string_view introduction) {
    std::size_t length = 0;
    for (const char byte : bytes) {
        const std::size_t escape =
            lengthOfEscape(text.substr(length), introduction, 2, static_cast<unsigned char>(byte));
        if (escape == 0) {
            return 0;
        }
        length += escape;
    }
    return length;
}

std::size_t lengthOfReference(std::string_view text, char32_t character) {
    constexpr std::size_t mostDigits = 7;
    const bool isHexadecimal = startsWith(text, "&#x") || startsWith(text, "&#X");
    if (!startsWith(text, "&#")) {
        return 0;
    }
    const std::size_t begin = isHexadecimal ? 3 : 2;
    const std::size_t digits =
        lengthOfNumber(text.substr(begin), isHexadecimal ? 16 : 10, mostDigits, character);
    return digits > 0 && startsWith(text.substr(begin + digits), ";") ? begin + digits + 1 : 0;
}

std::size_t lengthOfUnicodeEscape(std::string_view text, char32_t character) {
    constexpr std::size_t digits = 4;
    if (character < firstOfPairs) {
        return lengthOfEscape(text, "\\u", digits, character);
    }
    const std::size_t high =
        lengthOfEscape(text, "\\u", digits, 0xD800U + ((character - firstOfPairs) >> 10U));
    const std::size_t low = high == 0 ? 0
                                      : lengthOfEscape(text.substr(high), "\\u", digits,
                                                       0xDC00U + ((character - firstOfPairs) & 0x3FFU));
    return low == 0 ? 0 : high + low;
}

}  // namespace

void zvSpelledCharacter::appendEnds(std::string_view text, std::size_t at, char32_t character,
                                    std::vector<std::size_t>& ends) {
    const std::string_view rest = text.substr(at);
    const std::string bytes = utf8(character);
    const auto add = [&](std::size_t length) {
        if (length > 0) {
            ends.push_back(at + length);
        }
    };
    const auto addText = [&](std::string_view spelling) {
        add(startsWith(rest, spelling) ? spelling.size() : 0);
    };
    const auto addEscape = [&](std::string_view introduction) {
        add(character < firstBeyondLatin1 ? lengthOfEscape(rest, introduction, 2, character) : 0);
    };
    addText(bytes);
    for (const auto& name : names) {
        if (name.character == character) {
            addText(name.text);
        }
    }
    if (character >= firstBeyondAscii) {
        addText(encodedTwice(bytes));
        addText("?");
        addText("\xEF\xBF\xBD");
        if (character < firstBeyondLatin1) {
            addText(std::string(1, static_cast<char>(character)));
        }
    }
    switch (rest.empty() ? '\0' : rest.front()) {
        case '%':
            add(lengthOfPercentEncoded(rest, bytes, "%"));
            add(lengthOfPercentEncoded(rest, bytes, "%25"));
            addEscape("%");
            break;
        case '&':
            add(lengthOfReference(rest, character));
            break;
        case '\\':
            add(lengthOfUnicodeEscape(rest, character));
            addEscape("\\x");
            if (character < firstBeyondAscii) {
                add(startsWith(rest.substr(1), bytes) ? 1 + bytes.size() : 0);
            }
            break;
        default:
            break;
    }
}
