#include "zvUtf8.h"

#include <algorithm>

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

}  // namespace zvUtf8
