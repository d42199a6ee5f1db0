#include "zvProcess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <thread>

std::error_code zvProcess::flushToDisk(const std::filesystem::path& file) {
    return appendToFile(file, "", true);
}

std::error_code zvProcess::readToEnd(int descriptor, std::size_t limit, std::string& content) {
    constexpr std::size_t blockSize = 4096;
    std::array<char, blockSize> block{};
    std::error_code error;
    content.clear();
    for (long count = 1; count != 0 && !error;) {
        count = readSome(descriptor, block.data(), block.size());
        if (count > 0) {
            content.append(block.data(), static_cast<std::size_t>(count));
        } else if (count < 0 && errno != EINTR) {
            error = {errno, std::generic_category()};
        }
        if (content.size() > limit) {
            error = std::make_error_code(std::errc::file_too_large);
        }
    }
    close(descriptor);
    return error;
}

void zvProcess::waitFor(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds longestSlice{100};
    const auto end = std::chrono::steady_clock::now() + time;
    for (auto left = time; left.count() > 0 && notedSignal() == 0;
         left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now())) {
        std::this_thread::sleep_for(std::min(left, longestSlice));
    }
}
