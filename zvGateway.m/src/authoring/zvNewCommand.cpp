#include "zvNewCommand.h"

#include <filesystem>
#include <system_error>

#include "zvConfigurationXsd.h"
#include "zvConsole.h"
#include "zvNativePath.h"
#include "zvNewCasesYaml.h"
#include "zvNewClientConfigIni.h"
#include "zvNewConfigurationXml.h"
#include "zvNewFileServerProperties.h"
#include "zvNewLogXml.h"
#include "zvProcess.h"
#include "zvReplacedFile.h"

namespace fs = std::filesystem;

namespace {

struct NewFile {
    const char* name;
    const char* content;
    const char* purpose;
};
constexpr std::size_t nameColumns = 40;
constexpr NewFile files[] = {
    {"config/client-config.ini", zvNewClientConfigIni, "where events are posted"},
    {"config/customization-config.xml", zvNewConfigurationXml, "the mapping between the two systems"},
    {"config/zvgateway-configuration.xsd", zvConfigurationXsd, "what editors know of it"},
    {"config/customization-cases.yaml", zvNewCasesYaml, "what has to become of objects"},
    {"config/log4cxx.xml", zvNewLogXml, "what is logged, and where"},
    {"config/optional/fileserver.properties", zvNewFileServerProperties,
     "the file server: move it one folder up to use it"},
};

zvProgramFailure failure(const std::string& folder, const std::string& reason) {
    return {zvExitCode::usage, "new", zvConsole::printable(folder.c_str()), reason};
}

}  // namespace

zvExitCode zvNewCommand::run() const {
    const fs::path home = toNativePath(folder.c_str());
    std::error_code error;
    if (fs::exists(home, error) && !fs::is_directory(home, error)) {
        throw failure(folder, "it exists and is no folder");
    }
    if (fs::is_directory(home, error) && !fs::is_empty(home, error)) {
        throw failure(folder, "the folder is not empty; name another one");
    }
    error.clear();
    for (const char* const below : {"config/optional", "logs"}) {
        if (!error) {
            fs::create_directories(home / below, error);
        }
    }
    if (error) {
        throw failure(folder, zvProcess::messageOf(error));
    }
    for (const NewFile& file : files) {
        zvReplacedFile::write((home / file.name).string(), file.content);
        zvConsole::write("  " + zvConsole::padded(file.name, nameColumns) + " " + file.purpose + "\n");
    }
    const std::string shown = zvConsole::printablePath(folder.c_str());
    zvConsole::write("to go on\n  export GATEWAY_HOME=" + shown +
                     "\n  zvgateway check --home --offline\n  zvgateway test " + shown +
                     "/config/customization-cases.yaml\n");
    return zvExitCode::success;
}
