#include "zvLogText.h"

#include <log4cxx/helpers/transcoder.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <type_traits>
#include <vector>

#include "zvControlCharacter.h"
#include "zvLogPath.h"
#include "zvPlatform.h"
#include "zvTextCodec.h"

using log4cxx::LogString;
using log4cxx::helpers::Transcoder;

namespace {

constexpr char lineFeed = '\n';

// Nearly every text is: the same in every encoding, and nothing to escape. No early exit, so that the
// compiler can vectorise the loop.
bool isPlain(std::string_view text) {
    unsigned char odd = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isOdd = (byte < ' ' && byte != '\t') || byte >= 0x7F;
        odd |= static_cast<unsigned char>(isOdd);
    }
    return odd == 0;
}

void append(LogString& text, std::string_view ascii) { text.append(ascii.begin(), ascii.end()); }

void appendEscape(LogString& text, unsigned character) {
    constexpr unsigned lastByte = 0xFF;
    std::array<char, 16> escape{};
    std::snprintf(escape.data(), escape.size(), character > lastByte ? "\\u%04x" : "\\x%02x", character);
    append(text, character == lineFeed ? "\\n" : character == '\r' ? "\\r" : escape.data());
}

LogString escaped(const LogString& text, bool keepsLines) {
    LogString result;
    for (auto next = text.begin(); next != text.end();) {
        const auto begin = next;
        const unsigned character = Transcoder::decode(text, next);
        next = next == begin ? begin + 1 : next;
        if (keepsLines && character == lineFeed) {
            append(result, next == text.end() ? "\n" : "\n    ");
        } else if (character != '\t' && zvIsControlCharacter(character)) {
            appendEscape(result, character);
        } else {
            result.append(begin, next);
        }
    }
    return result;
}

// The system with wide paths is the one without locales that have UTF-8.
bool isReadAsUtf8(const std::string& text) {
    if constexpr (std::is_same_v<std::filesystem::path::value_type, char>) {
        return false;
    } else {
        std::vector<wchar16> units(text.size());
        return zvTextCodec::fromUtf8(text.c_str(), units.data()) != zvTextCodec::unconvertible;
    }
}

LogString safe(std::string_view text, bool keepsLines) {
    if (isPlain(text)) {
        return {text.begin(), text.end()};
    }
    return escaped(zvLogText::decoded(text), keepsLines);
}

}  // namespace

LogString zvLogText::decoded(std::string_view text) {
    const std::string narrow(text);
    LogString result;
    if (isReadAsUtf8(narrow)) {
        Transcoder::decodeUTF8(narrow, result);
    } else {
        Transcoder::decode(narrow, result);
    }
    return result;
}

void zvLogText::complain(const LogString& line) {
    zvPlatform::complain(zvLogPath::of(LOG4CXX_STR("log: ") + line + LOG4CXX_STR("\n")).native());
}

LogString zvLogText::onOneLine(std::string_view text) { return safe(text, false); }

LogString zvLogText::onIndentedLines(std::string_view text) { return safe(text, true); }
