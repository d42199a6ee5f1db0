#include "zvSecretStore.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <vector>

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvSecrets.h"

namespace fs = std::filesystem;

namespace {

// More than any list of passwords needs; a source without an end must not fill the memory.
constexpr std::size_t mostBytes = 1'000'000;

zvStepFailure failure(const std::string& source, const std::string& reason) {
    return {zvConsole::printable(source.c_str()), reason};
}

int openFile(const std::string& file) {
    if (const zvString fault = zvDirFileUtils::getNameError(file.c_str()); !fault.empty()) {
        throw failure(file, zvConsole::printable(fault));
    }
    std::error_code error;
    const int descriptor = zvProcess::openForReading(std::filesystem::u8path(file), error);
    if (error) {
        throw failure(file, zvProcess::messageOf(error));
    }
    return descriptor;
}

std::string contentOf(int descriptor, const std::string& source) {
    std::string content;
    const std::error_code error = zvProcess::readToEnd(descriptor, mostBytes, content);
    if (error) {
        throw failure(source, zvProcess::messageOf(error));
    }
    return content;
}

void dropCarriageReturn(std::string& line) {
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
}

void dropLineEnd(std::string& text) {
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
        dropCarriageReturn(text);
    }
}

// Empty for bytes that are no text in the process's locale.
zvString toText(const std::string& bytes) {
    return bytes.find('\0') == std::string::npos ? zvString(bytes.c_str()) : zvString();
}

std::vector<fs::path> filesIn(const std::string& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(fs::u8path(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().filename().string().front() != '.' && !entry->is_directory()) {
            files.push_back(entry->path());
        }
    }
    if (error) {
        throw failure(folder, zvProcess::messageOf(error));
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

void zvSecretStore::readFile(const std::string& file) {
    const int descriptor = openFile(file);
    if (!zvProcess::isPrivate(descriptor)) {
        zvProcess::close(descriptor);
        throw failure(file,
                      "only the user who runs the program may own and read a file with secrets: chmod 600 " +
                          zvConsole::printable(file.c_str()));
    }
    readLines(descriptor, file);
}

void zvSecretStore::readDescriptor(int descriptor) {
    readLines(descriptor, "file descriptor " + std::to_string(descriptor));
}

void zvSecretStore::readFolder(const std::string& folder) {
    for (const fs::path& file : filesIn(folder)) {
        const std::string source = file.string();
        std::string value = contentOf(openFile(source), source);
        dropLineEnd(value);
        const std::string fault = add(file.filename().string(), value, source);
        if (!fault.empty()) {
            throw failure(source, fault);
        }
    }
}

std::string zvSecretStore::sourceOf(const zvString& name) const {
    const auto found = m_secrets.find(name);
    return found == m_secrets.end() ? "" : found->second.source;
}

void zvSecretStore::readLines(int descriptor, const std::string& source) {
    std::istringstream lines(contentOf(descriptor, source));
    std::string faults;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        dropCarriageReturn(line);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::size_t separator = line.find('=');
        const std::string fault = separator == std::string::npos
                                      ? "it has no \"=\""
                                      : add(line.substr(0, separator), line.substr(separator + 1), source);
        if (!fault.empty()) {
            faults += (faults.empty() ? "line " : "; line ") + std::to_string(number) + ": " + fault;
        }
    }
    if (!faults.empty()) {
        throw failure(source, faults);
    }
}

// Returns why the secret is not taken.
std::string zvSecretStore::add(const std::string& name, const std::string& value, const std::string& source) {
    if (name.empty() || value.empty()) {
        return name.empty() ? "the secret has no name" : "the secret has no value";
    }
    const zvString key = toText(name);
    const zvString text = toText(value);
    if (key.empty() || text.empty()) {
        return "it is no text in the locale's encoding";
    }
    const auto [entry, isNew] = m_secrets.insert({key, {text, zvConsole::printable(source.c_str())}});
    if (!isNew) {
        return "\"" + zvConsole::printable(key) + "\" is given by " + entry->second.source + " already";
    }
    zvSecrets::addKey(key);
    return "";
}
