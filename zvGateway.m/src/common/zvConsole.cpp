#include "zvConsole.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "zvCharString.h"
#include "zvControlCharacter.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvShownArguments.h"
#include "zvUtf8.h"

namespace {

std::FILE* out = stdout;      // of what a person is told
std::FILE* answers = stdout;  // of print()
bool answered = false;
bool mute = false;
bool quiet = false;
const char* heading = nullptr;  // still to be printed
bool progressIsShown = true;
bool lineIsRewritable = false;

// At most: what may be wide on a terminal counts as two.
std::size_t columnsOf(wchar16 unit) {
    constexpr wchar16 firstWide = 0x1100;
    return unit < firstWide ? 1 : 2;
}

bool isSecondOfPair(wchar16 unit) { return (unit & 0xFC00U) == 0xDC00U; }

}  // namespace

namespace zvConsole {

void leaveStandardOutput() {
    out = stderr;
    answers = zvProcess::reserveStandardOutput();
    if (answers == nullptr) {
        answers = stdout;
        throw zvProgramFailure{zvExitCode::unexpected, "standard output", "duplicate",
                               "the system refuses it"};
    }
}

bool hasLeftStandardOutput() { return out == stderr; }

void write(const std::string& text) { zvProcess::write(stdout, text); }

void complain(const std::string& message) {
    zvProcess::write(stderr, "zvgateway: " + zvShownArguments::masked(message) + "\n");
}

void print(const std::string& answer) {
    zvProcess::write(answers, zvShownArguments::masked(answer));
    answered = true;
}

bool hasAnswered() { return answered; }

bool flush() { return std::fflush(answers) == 0 && std::ferror(answers) == 0; }

std::string printable(const zvString& text) {
    std::u16string shown(text.data(), text.data() + text.size());
    std::replace_if(shown.begin(), shown.end(), zvIsControlCharacter, u'?');
    return zvCharString(zvString(shown.c_str())).data();
}

std::string printableUtf8(const std::string& text) {
    zvString decoded;
    return zvUtf8::decode(text, decoded) ? printable(decoded) : "?";
}

std::string printablePath(const zvString& path) { return printable(zvDirFileUtils::nativePath(path)); }

void step(const char* name) { heading = name; }

void muteSteps() { mute = true; }

void setQuiet() {
    mute = quiet = true;
    leaveOutProgress();
}

void note(const std::string& text) { outcome(text, false); }

void outcome(const std::string& text, bool isFailure) {
    if (!quiet || isFailure) {
        rewrite("");
        zvProcess::write(stderr, zvShownArguments::masked(text) + "\n");
    }
}

void fact(const std::string& name, const std::string& value) {
    if (mute) {
        return;
    }
    rewrite("");
    constexpr std::size_t nameColumns = 22;
    const std::string indent = heading == nullptr ? "  " : std::string(heading) + "\n  ";
    heading = nullptr;
    zvProcess::write(out, indent + padded(name, nameColumns) + " " + zvShownArguments::masked(value) + "\n");
    std::fflush(out);
}

void leaveOutProgress() { progressIsShown = false; }

bool showsProgress() { return progressIsShown; }

std::size_t rewritableColumns() {
    const std::size_t columns = zvProcess::terminalColumns(out);
    // In the last column some terminals begin a new line.
    return columns == 0 ? 0 : columns - 1;
}

void rewrite(const std::string& line) {
    if (lineIsRewritable || !line.empty()) {
        const std::string blanks(lineIsRewritable ? rewritableColumns() : 0, ' ');
        zvProcess::write(out, "\r" + blanks + "\r" + line);
        std::fflush(out);
        lineIsRewritable = !line.empty();
    }
}

zvString shortened(const zvString& text, std::size_t columns) {
    constexpr std::size_t dots = 3;
    std::size_t used = 0;
    int fitting = text.size();  // where what fits beside the dots begins
    for (int i = text.size(); i-- > 0;) {
        used += columnsOf(text[i]);
        if (used + dots <= columns && !isSecondOfPair(text[i])) {
            fitting = i;
        }
    }
    return used <= columns ? text : "..." + text.substr(fitting, text.size() - fitting);
}

std::string padded(std::string text, std::size_t length) {
    text.append(length - std::min(length, text.size()), ' ');
    return text;
}

std::string size(double bytes) {
    constexpr const char* units[] = {"bytes", "kB", "MB", "GB", "TB"};
    constexpr double thousand = 1000;
    std::size_t unit = 0;
    while (bytes >= thousand && unit + 1 < std::size(units)) {
        bytes /= thousand;
        ++unit;
    }
    constexpr std::size_t width = 40;
    char text[width];
    std::snprintf(text, width, unit == 0 ? "%.0f %s" : "%.1f %s", bytes, units[unit]);
    return text;
}

std::string rate(double bytes, double milliseconds) {
    constexpr double perSecond = 1000;
    return size(bytes * perSecond / std::max(milliseconds, 1.0)) + "/s";
}

std::string counted(std::ptrdiff_t count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string counted(std::ptrdiff_t count, const char* singular, const char* plural) {
    return std::to_string(count) + " " + (count == 1 ? singular : plural);
}

std::string joined(const std::vector<std::string>& texts, const char* separator) {
    std::string all;
    for (const std::string& text : texts) {
        all.append(all.empty() ? "" : separator).append(text);
    }
    return all;
}

}  // namespace zvConsole
