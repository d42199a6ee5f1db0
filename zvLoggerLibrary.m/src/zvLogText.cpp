#include "zvLogText.h"

#include <log4cxx/helpers/transcoder.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "zvControlCharacter.h"
#include "zvTextCodec.h"

using log4cxx::LogString;
using log4cxx::helpers::Transcoder;

namespace {

constexpr char lineFeed = '\n';

bool isPlain(char c) { return c == '\t' || !zvIsControlCharacter(static_cast<unsigned char>(c)); }

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

// Nearly every line is ASCII, which is the same in every encoding, and log4cxx's decoder is slow.
LogString safe(std::string_view text, bool keepsLines) {
    const bool isAscii = zvTextCodec::isAscii(text.data(), text.size());
    if (isAscii && std::all_of(text.begin(), text.end(), isPlain)) {
        return {text.begin(), text.end()};
    }
    LogString decoded;
    Transcoder::decode(std::string(text), decoded);
    return escaped(decoded, keepsLines);
}

}  // namespace

LogString zvLogText::onOneLine(std::string_view text) { return safe(text, false); }

LogString zvLogText::onIndentedLines(std::string_view text) { return safe(text, true); }
