#include "zvTransferProgress.h"

#include "zvConsole.h"
#include "zvNativePath.h"

namespace {

// As much of the file's name as there is room for.
void showLine(const zvString& file, const std::string& state) {
    constexpr std::size_t margin = 2;
    constexpr std::size_t shortestName = 8;
    const std::size_t columns = zvConsole::rewritableColumns();
    const std::size_t others = margin + margin + state.size();
    if (columns < others + shortestName) {
        zvConsole::rewrite(state.substr(0, columns));
        return;
    }
    const zvString name = toNativePath(file).filename().string().c_str();
    const std::string blanks(margin, ' ');
    zvConsole::rewrite(blanks + zvConsole::printable(zvConsole::shortened(name, columns - others)) + blanks +
                       state);
}

}  // namespace

zvTransferProgress::~zvTransferProgress() { zvConsole::rewrite(""); }

void zvTransferProgress::begin(Clock::time_point now) {
    m_begin = now;
    m_told = now;
    m_meter.reset();
}

void zvTransferProgress::update(const zvString& file, zvInt64 bytes, zvInt64 total, Clock::time_point now) {
    constexpr std::chrono::seconds shortTransfer{1};
    constexpr std::chrono::milliseconds betweenRewrites{100};
    constexpr std::chrono::seconds betweenLines{10};
    if (m_meter.has_value()) {
        m_meter->reach(static_cast<double>(bytes), now);
    } else {
        m_meter.emplace(static_cast<double>(bytes), now);
    }
    const bool isTerminal = zvConsole::rewritableColumns() > 0;
    const bool isDue = isTerminal ? now - m_begin >= shortTransfer && now - m_told >= betweenRewrites
                                  : now - m_told >= betweenLines;
    if (!isDue || !zvConsole::showsProgress()) {
        return;
    }
    m_told = now;
    if (isTerminal) {
        showLine(file, state("  ", bytes, total));
    } else {
        zvConsole::fact("progress", zvConsole::printablePath(file) + ", " + state(", ", bytes, total));
    }
}

std::string zvTransferProgress::state(const char* separator, zvInt64 bytes, zvInt64 total) const {
    constexpr double second = 1000;
    const std::string rate = zvConsole::rate(m_meter->perSecond(), second);
    if (total < 0) {
        return zvConsole::size(static_cast<double>(bytes)) + separator + rate;
    }
    const auto all = static_cast<double>(total);
    return m_meter->percent(all) + separator + rate + separator + m_meter->timeLeft(all);
}
