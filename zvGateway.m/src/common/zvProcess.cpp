#include "zvProcess.h"

#include <algorithm>
#include <thread>

std::error_code zvProcess::flushToDisk(const std::filesystem::path& file) {
    return appendToFile(file, "", true);
}

void zvProcess::waitFor(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds longestSlice{100};
    const auto end = std::chrono::steady_clock::now() + time;
    for (auto left = time; left.count() > 0 && notedSignal() == 0;
         left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now())) {
        std::this_thread::sleep_for(std::min(left, longestSlice));
    }
}
