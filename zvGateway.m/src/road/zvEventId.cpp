#include "zvEventId.h"

#include <array>
#include <cstdio>
#include <random>

#include "zvArgumentValue.h"
#include "zvEventRecord.h"

zvString eventIdOf(const std::vector<std::string>& arguments) {
    const zvString name = argumentValue(arguments, "EventShadowDir").c_str();
    zvString id;
    if (!name.empty()) {
        id = zvEventRecord::eventIdIn(zvEventRecord::fileIn(
            zvString(argumentValue(arguments, "RootShadowDir").c_str()) + "\\" + name, name));
    }
    if (id.empty()) {
        id = argumentValue(arguments, "EventId").c_str();
    }
    return id.empty() ? zvString(makeEventId().c_str()) : id;
}

std::string makeEventId() {
    std::random_device device;
    std::array<unsigned, 4> words{};
    for (unsigned& word : words) {
        word = device();
    }
    // Version 4, of random numbers; variant 1.
    words[1] = (words[1] & 0xFFFF0FFFU) | 0x4000U;
    words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;
    constexpr std::size_t length = 36;
    char text[length + 1];
    std::snprintf(text, sizeof(text), "%08x-%04x-%04x-%04x-%04x%08x", words[0], words[1] >> 16U,
                  words[1] & 0xFFFFU, words[2] >> 16U, words[2] & 0xFFFFU, words[3]);
    return text;
}
