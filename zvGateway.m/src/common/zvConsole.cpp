#include "zvConsole.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "zvCharString.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvUtf8.h"

namespace {

std::FILE* out = stdout;      // of what a person is told
std::FILE* answers = stdout;  // of print()
bool answered = false;
bool mute = false;
bool quiet = false;
const char* heading = nullptr;  // still to be printed

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

void print(const std::string& answer) {
    std::fputs(answer.c_str(), answers);
    answered = true;
}

bool hasAnswered() { return answered; }

bool flush() { return std::fflush(answers) == 0 && std::ferror(answers) == 0; }

std::string printable(const zvString& text) {
    std::string narrow = zvCharString(text).data();
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; };
    std::replace_if(narrow.begin(), narrow.end(), isControl, '?');
    return narrow;
}

std::string printableUtf8(const std::string& text) {
    zvString decoded;
    return zvUtf8::decode(text, decoded) ? printable(decoded) : "?";
}

std::string printablePath(const zvString& path) { return printable(zvDirFileUtils::nativePath(path)); }

void step(const char* name) { heading = name; }

void muteSteps() { mute = true; }

void setQuiet() { mute = quiet = true; }

bool isQuiet() { return quiet; }

void note(const std::string& text) { outcome(text, false); }

void outcome(const std::string& text, bool isFailure) {
    if (!quiet || isFailure) {
        std::fprintf(stderr, "%s\n", text.c_str());
    }
}

void fact(const std::string& name, const std::string& value) {
    if (mute) {
        return;
    }
    if (heading != nullptr) {
        std::fprintf(out, "%s\n", heading);
        heading = nullptr;
    }
    std::fprintf(out, "  %-22s %s\n", name.c_str(), value.c_str());
    std::fflush(out);
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
