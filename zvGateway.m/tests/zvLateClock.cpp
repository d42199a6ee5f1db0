// Preloaded, it lets a program live on 2040-01-01: time() stands still there.
#include <ctime>

extern "C" time_t time(time_t* result) noexcept {
    constexpr time_t now = 2208988800;
    if (result != nullptr) {
        *result = now;
    }
    return now;
}
