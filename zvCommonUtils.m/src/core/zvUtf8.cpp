#include "zvUtf8.h"

#include <algorithm>
#include <vector>

#include "zvTextCodec.h"

namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// How many bytes the character has that begins with this one, if it is well-formed.
std::size_t lengthByLead(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// Takes one character, or what is left of one, from the beginning of `bytes`.
void takeCharacter(std::string_view& bytes, std::vector<wchar16>& units) {
    constexpr wchar16 replacement = 0xFFFD;
    std::size_t length = 1;
    while (length < std::min(lengthByLead(bytes.front()), bytes.size()) && isContinuation(bytes[length])) {
        ++length;
    }
    wchar16 character[4];
    const std::size_t count = zvTextCodec::fromUtf8(std::string(bytes.substr(0, length)).c_str(), character);
    if (count == 0 || count == zvTextCodec::unconvertible) {
        units.push_back(replacement);
    } else {
        units.insert(units.end(), character, character + count);
    }
    bytes.remove_prefix(length);
}

}  // namespace

namespace zvUtf8 {

std::string encode(const zvString& text) {
    std::string bytes;
    bytes.resize(encode(text, bytes).size());
    return bytes;
}

std::string_view encode(const zvString& text, std::string& buffer) {
    constexpr std::size_t mostBytesOfAUnit = 3;
    const auto units = static_cast<std::size_t>(text.size());
    buffer.resize(std::max(buffer.size(), units * mostBytesOfAUnit));
    return {buffer.data(), zvTextCodec::toUtf8(text.data(), units, buffer.data())};
}

bool decode(const std::string& bytes, zvString& text) {
    std::vector<wchar16> units(bytes.size());
    const std::size_t length = zvTextCodec::fromUtf8(bytes.c_str(), units.data());
    const bool isValid = length != zvTextCodec::unconvertible;
    text = isValid ? zvString(units.data(), static_cast<int>(length)) : zvString();
    return isValid;
}

zvString decodeReplacing(std::string_view bytes) {
    std::vector<wchar16> units;
    while (!bytes.empty()) {
        takeCharacter(bytes, units);
    }
    return units.empty() ? zvString() : zvString(units.data(), static_cast<int>(units.size()));
}

}  // namespace zvUtf8
