#include "zvProcessEnd.h"

#include <cstdlib>
#include <utility>

namespace {

// Never destroyed: the process may end while static objects are.
std::function<void()>& pending() {
    static auto& atEnd = *new std::function<void()>;
    return atEnd;
}

}  // namespace

zvProcessEnd::zvProcessEnd(std::function<void()> atEnd) {
    static const bool isRegistered = std::atexit(notify) == 0;
    static_cast<void>(isRegistered);
    pending() = std::move(atEnd);
}

zvProcessEnd::~zvProcessEnd() { pending() = nullptr; }

void zvProcessEnd::notify() {
    const std::function<void()> atEnd = std::exchange(pending(), nullptr);
    if (atEnd) {
        atEnd();
    }
}
