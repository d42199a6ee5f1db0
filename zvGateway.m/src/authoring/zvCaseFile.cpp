#include "zvCaseFile.h"

#include <filesystem>
#include <system_error>

#include "zvCaseReader.h"
#include "zvCharString.h"
#include "zvConsole.h"
#include "zvFailure.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvStandardInput.h"
#include "zvYamlReader.h"

namespace {

constexpr std::size_t longest = 256'000'000;

std::string contentOf(const std::string& name) {
    std::error_code error;
    std::string content;
    const std::filesystem::path file = toNativePath(name.c_str());
    const bool isStandardInput = zvStandardInput::isMeantBy(name);
    if (!isStandardInput && std::filesystem::exists(file, error) &&
        !std::filesystem::is_regular_file(file, error)) {
        throw zvProgramFailure{zvExitCode::usage, "cases", zvConsole::printable(name.c_str()),
                               "it is no regular file"};
    }
    const int descriptor =
        isStandardInput ? zvStandardInput::descriptor : zvProcess::openForReading(file, error);
    if (descriptor >= 0) {
        error = zvProcess::readToEnd(descriptor, longest, content);
    }
    if (error) {
        throw zvProgramFailure{zvExitCode::usage, "cases", zvConsole::printable(name.c_str()),
                               zvProcess::messageOf(error)};
    }
    return content;
}

// A relative name is meant from the folder of the file that has it.
std::string besideOf(const std::string& name, const zvString& configuration) {
    const std::filesystem::path path = toNativePath(configuration);
    return configuration.empty() ? "" : (toNativePath(name.c_str()).parent_path() / path).string();
}

void readDocument(const zvYamlNode& document, zvCaseFile& file) {
    if (document.kind != zvYamlNode::Kind::map) {
        file.faults.add(document.position, "the file has to begin with \"configuration:\" or \"cases:\"");
        return;
    }
    const zvCaseKeys keys(document, {"configuration", "cases"}, file.faults);
    file.configuration = besideOf(file.name, keys.text("configuration"));
    if (!keys.has("cases")) {
        keys.fault("cases", "is missing");
    }
    static_cast<void>(keys.list("cases"));
}

}  // namespace

zvCaseFile zvCaseFile::read(const std::string& name) {
    zvCaseFile file;
    file.name = name;
    try {
        const auto readCase = [&file](const zvYamlNode& node) {
            file.cases.push_back(zvCaseReader::read(node, file.faults));
        };
        readDocument(zvYamlReader::read(contentOf(name), "cases", readCase), file);
    } catch (const zvCaseFault& fault) {
        file.faults.add(fault.position, fault.text);
    }
    return file;
}

// Nothing is run then.
void zvCaseFile::requireFaultless() const {
    if (faults.areNone()) {
        return;
    }
    const std::string shown = zvConsole::printable(zvStandardInput::nameOf(name).c_str());
    for (const zvCaseFault& fault : faults.first()) {
        std::string line = shown;
        for (const int number : {fault.position.line, fault.position.column}) {
            line.append(number > 0 ? ":" + std::to_string(number) : "");
        }
        zvConsole::note(line.append(": error: ").append(fault.text));
    }
    throw zvProgramFailure{zvExitCode::usage, "cases", shown,
                           zvConsole::counted(static_cast<std::ptrdiff_t>(faults.count()), "fault") +
                               ", no case was run; first in line " +
                               std::to_string(faults.first().front().position.line) + ": " +
                               faults.first().front().text};
}
