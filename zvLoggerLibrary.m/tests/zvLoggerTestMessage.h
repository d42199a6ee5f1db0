#ifndef ZV_LOGGER_TEST_MESSAGE_H
#define ZV_LOGGER_TEST_MESSAGE_H

#include <string>

/// Message number `index` of the test program with that name: every fourth one is longer than 4 KiB.
inline std::string zvLoggerTestMessage(const std::string& program, int index) {
    const std::size_t length = index % 4 == 0 ? 6000 : index % 4 == 1 ? 1500 : 60;
    return program + " " + std::to_string(index) + " " +
           std::string(length, static_cast<char>('a' + index % 26));
}

#endif
