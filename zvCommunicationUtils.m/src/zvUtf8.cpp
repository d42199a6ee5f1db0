#include "zvUtf8.h"

#include "zvTextCodec.h"

std::string zvUtf8::encode(const zvString& text) {
    constexpr std::size_t mostBytesOfAUnit = 3;
    const auto units = static_cast<std::size_t>(text.size());
    std::string bytes(units * mostBytesOfAUnit, '\0');
    bytes.resize(zvTextCodec::toUtf8(text.data(), units, bytes.data()));
    return bytes;
}
