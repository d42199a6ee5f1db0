#include "zvProcessEnd.h"

#include <cstdlib>
#include <utility>
#include <vector>

#include "zvProcess.h"

namespace {

// Never destroyed: the process may end while static objects are.
std::vector<const zvProcessEnd*>& pending() {
    static auto& objects = *new std::vector<const zvProcessEnd*>;
    return objects;
}

}  // namespace

zvProcessEnd::zvProcessEnd(std::function<zvExitCode()> atEnd) : m_atEnd(std::move(atEnd)) {
    static const bool isRegistered = std::atexit(notify) == 0;
    static_cast<void>(isRegistered);
    pending().push_back(this);
}

zvProcessEnd::~zvProcessEnd() { pending().pop_back(); }

void zvProcessEnd::notify() {
    std::vector<const zvProcessEnd*> objects = std::exchange(pending(), {});
    if (objects.empty()) {
        return;
    }
    zvExitCode exitCode = zvExitCode::unexpected;
    for (; !objects.empty(); objects.pop_back()) {
        exitCode = objects.back()->m_atEnd();
    }
    // Nothing of the program has to be cleaned up, and what it would meet is half done.
    zvProcess::endAtOnce(static_cast<int>(exitCode));
}
