#include "zvClassArchive.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <sstream>
#include <system_error>
#include <utility>

#define XXH_INLINE_ALL  // NOLINT(readability-identifier-naming): the header's own
#include <xxhash.h>

#include "zvCommonUtils.h"
#include "zvFileStamp.h"
#include "zvJavaMachine.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::hours lifetime(30 * 24);
constexpr std::chrono::seconds longestMaking(30);
constexpr char listSeparator = fs::path::preferred_separator == '/' ? ':' : ';';
constexpr char suffix[] = ".jsa";
constexpr char partSuffix[] = ".part";
constexpr std::size_t largestArchive = std::size_t{1} << 28;

fs::path variable(const char* name) {
    fs::path folder = toNativePath(zvCommonUtils::getEnvironmentalVariable(name));
    return folder.is_absolute() ? folder : fs::path();
}

fs::path cacheFolder() {
    const fs::path home = variable("HOME");
    for (const fs::path& folder :
         {variable("XDG_CACHE_HOME"), variable("LOCALAPPDATA"), home.empty() ? home : home / ".cache"}) {
        // Java would take a list of files for two archives.
        if (!folder.empty() &&
            folder.native().find(static_cast<fs::path::value_type>(':'), 2) == fs::path::string_type::npos) {
            return folder / "zvgateway";
        }
    }
    return {};
}

std::string hashOf(const std::string& text) {
    std::array<char, 17> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx",
                  static_cast<unsigned long long>(XXH3_64bits(text.data(), text.size())));
    return digits.data();
}

// What an archive is good for: a change of any of it makes another one.
std::string identity(const fs::path& library, const std::vector<std::string>& options) {
    const std::string classPath = toNativePath(zvCommonUtils::getEnvironmentalVariable("CLASSPATH")).string();
    std::string text = library.string() + '\n' + fileStamp(library) + '\n' + classPath;
    std::istringstream entries(classPath);
    for (std::string entry; std::getline(entries, entry, listSeparator);) {
        text += '\n' + fileStamp(fs::u8path(entry));
    }
    for (const std::string& option : options) {
        text += '\n' + option;
    }
    return hashOf(text);
}

bool isOld(const fs::path& file) {
    std::error_code error;
    const auto changed = fs::last_write_time(file, error);
    return error || fs::file_time_type::clock::now() - changed > lifetime;
}

// The content of a file that is this user's alone; false for another file.
bool readOwn(const fs::path& file, std::string& content) {
    std::error_code error;
    const int descriptor = zvProcess::openForReading(file, error);
    if (descriptor >= 0 && !zvProcess::isPrivate(descriptor)) {
        zvProcess::close(descriptor);
        return false;
    }
    return descriptor >= 0 && !zvProcess::readToEnd(descriptor, largestArchive, content);
}

std::vector<fs::path> filesOf(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> files;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        files.push_back(entry->path());
    }
    return files;
}

}  // namespace

zvClassArchive::zvClassArchive(std::vector<std::string> javaOptions)
    : m_javaOptions(std::move(javaOptions)), m_folder(cacheFolder()) {
    const fs::path library = toNativePath(zvJavaMachine::library());
    if (m_folder.empty() || library.empty() || !zvProcess::makePrivateFolder(m_folder)) {
        return;
    }
    m_strPrefix = "java-" + identity(library, m_javaOptions) + "-";
    m_state = State::missing;
    for (const fs::path& file : filesOf(m_folder)) {
        const State state = look(file);
        if (state != State::missing) {
            m_state = state;
            m_file = file;
        }
    }
}

zvClassArchive::State zvClassArchive::look(const fs::path& file) const {
    std::string content;
    std::error_code error;
    const bool isWhole = file.filename().string().rfind(m_strPrefix, 0) == 0 &&
                         fs::is_regular_file(zvProcess::statusOf(file, error)) && !isOld(file) &&
                         readOwn(file, content) && file.filename() == m_strPrefix + hashOf(content) + suffix;
    return !isWhole ? State::missing : content.empty() ? State::unmakable : State::usable;
}

// What Java has to say of an archive that does not fit is nobody's concern.
std::vector<std::string> zvClassArchive::options() const {
    return m_state == State::usable ? std::vector<std::string>{"-XX:SharedArchiveFile=" + m_file.string(),
                                                               "-Xshare:auto", "-Xlog:disable"}
                                    : std::vector<std::string>();
}

std::string zvClassArchive::make() {
    if (m_state == State::impossible) {
        return "there is no Java, or no folder for it that is this user's alone (XDG_CACHE_HOME, HOME)";
    }
    zvProcess::FileLock lock;
    std::error_code error;
    switch (lock.take(m_folder / "lock", error)) {
        case zvProcess::Lock::taken:
            return makeLocked();
        case zvProcess::Lock::heldByAnother:
            return "";
        default:
            return zvProcess::messageOf(error);
    }
}

std::string zvClassArchive::makeLocked() {
    tidy();
    const fs::path part = m_folder / (m_strPrefix + partSuffix);
    std::vector<std::string> arguments{"prepare-java", "--into", part.string(), "--"};
    arguments.insert(arguments.end(), m_javaOptions.begin(), m_javaOptions.end());
    const bool isEnded = zvProcess::run(zvProcess::programFile(), arguments, longestMaking);
    std::error_code error;
    const bool isMade = isEnded && fs::exists(part, error);
    if (!isMade) {
        fs::remove(part, error);
        if (zvProcess::notedSignal() != 0) {
            return "interrupted";
        }
        // An empty file, for who comes next.
        error = zvProcess::appendToFile(part, "", false);
    }
    error = error ? error : keep(part);
    if (error) {
        std::error_code ignored;
        fs::remove(part, ignored);
        return zvProcess::messageOf(error);
    }
    return isMade ? "" : "this Java makes no archive of classes; Java 13 and later do";
}

std::error_code zvClassArchive::keep(const fs::path& made) {
    std::error_code error;
    std::string content;
    fs::permissions(made, fs::perms::owner_read | fs::perms::owner_write, error);
    if (!error && !readOwn(made, content)) {
        error = std::make_error_code(std::errc::io_error);
    }
    if (!error) {
        error = zvProcess::flushToDisk(made);
    }
    m_file = m_folder / (m_strPrefix + hashOf(content) + suffix);
    if (!error) {
        zvProcess::replaceFile(made, m_file, error);
    }
    return error;
}

// What earlier makers have left, what is out of date, and what this archive replaces.
void zvClassArchive::tidy() const {
    for (const fs::path& file : filesOf(m_folder)) {
        const bool isReplaced = file.filename().string().rfind(m_strPrefix, 0) == 0;
        if (isReplaced || file.extension() == partSuffix || (file.extension() == suffix && isOld(file))) {
            std::error_code ignored;
            fs::remove(file, ignored);
        }
    }
}
