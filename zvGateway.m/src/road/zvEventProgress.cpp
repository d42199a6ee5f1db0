#include "zvEventProgress.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace fs = std::filesystem;

namespace {

constexpr char arrived[] = "arrived ";
constexpr char transferred[] = "transferred";
constexpr char posted[] = "posted";

// The size and the time of the last change; empty for a file that is not there.
std::string stampOf(const fs::path& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (error) {
        return "";
    }
    const auto time = fs::last_write_time(path, error);
    return error ? "" : std::to_string(size) + " " + std::to_string(time.time_since_epoch().count());
}

zvStepFailure failure(const fs::path& file, const std::string& reason) {
    return {zvConsole::printable(file.string().c_str()), reason};
}

}  // namespace

zvEventProgress::zvEventProgress(const zvString& file) : m_file(toNativePath(file)) {
    std::error_code error;
    const zvProcess::Lock lock = zvProcess::lockFile(m_file, error);
    if (lock == zvProcess::Lock::heldByAnother) {
        throw failure(m_file, "another process is running this event");
    }
    if (lock == zvProcess::Lock::refused) {
        throw failure(m_file, error.message());
    }
    read();
}

void zvEventProgress::read() {
    std::ifstream stream(m_file, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        // A line without an end was cut off.
        m_bTornEnd = stream.eof();
        if (!m_bTornEnd) {
            understand(line);
        }
    }
    if (!stream.is_open() || stream.bad()) {
        throw failure(m_file, "it cannot be read");
    }
}

void zvEventProgress::understand(const std::string& line) {
    m_bTransferred = m_bTransferred || line == transferred;
    m_bPosted = m_bPosted || line == posted;
    if (line.rfind(arrived, 0) != 0) {
        return;
    }
    // The stamp is two numbers, and the path is the rest of the line.
    const std::size_t stamp = sizeof(arrived) - 1;
    const std::size_t path = line.find(' ', std::min(line.find(' ', stamp), line.size() - 1) + 1);
    if (path != std::string::npos) {
        m_arrivals[line.substr(path + 1)] = line.substr(stamp, path - stamp);
    }
}

bool zvEventProgress::hasArrived(const zvString& path) const {
    const fs::path file = toNativePath(path);
    const auto found = m_arrivals.find(file.string());
    if (found == m_arrivals.end()) {
        return false;
    }
    const std::string stamp = stampOf(file);
    return stamp.empty() || stamp == found->second;
}

void zvEventProgress::begin(const zvString& path) { m_strSending = stampOf(toNativePath(path)); }

void zvEventProgress::setArrived(const zvString& path) {
    const std::string file = toNativePath(path).string();
    m_arrivals[file] = m_strSending;
    // A path that would break the line is not kept: the file is sent again, at worst.
    if (file.find('\n') == std::string::npos) {
        append(arrived + m_strSending + " " + file);
    }
}

void zvEventProgress::setTransferred() {
    m_bTransferred = true;
    append(transferred);
}

void zvEventProgress::setPosted() {
    m_bPosted = true;
    append(posted);
}

void zvEventProgress::append(const std::string& line) {
    const std::string text = (m_bTornEnd ? "\n" : "") + line + "\n";
    errno = 0;
    std::ofstream stream(m_file, std::ios::binary | std::ios::app);
    stream << text << std::flush;
    m_bTornEnd = !stream.good();
    if (m_bTornEnd && m_strFault.empty()) {
        m_strFault = std::generic_category().message(errno);
    }
}

void zvEventProgress::requireWritten() const {
    if (!m_strFault.empty()) {
        throw failure(m_file, m_strFault);
    }
}
