#include "zvUtf8.h"

#include <algorithm>
#include <vector>

#include "zvTextCodec.h"

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

}  // namespace zvUtf8
