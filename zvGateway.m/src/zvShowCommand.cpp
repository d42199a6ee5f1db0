#include "zvShowCommand.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "zvConfigurationDocument.h"
#include "zvConfigurationListing.h"
#include "zvConfigurationPage.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"
#include "zvReplacedFile.h"

namespace {

zvStepFailure incomplete(const zvConfigurationReading& reading, const std::string& file) {
    const std::vector<zvFinding> findings = reading.findings(zvConfigurationDocument(file));
    const std::string where = findings.empty() ? "" : findings.back().where;
    return {zvExitCode::configuration, "configuration", zvConsole::printable(file.c_str()),
            findings.empty() ? "it is not read to its end"
                             : where + (where.empty() ? "" : ": ") + findings.back().what};
}

}  // namespace

zvExitCode zvShowCommand::run() const {
    const zvConfigurationReading reading(file);
    if (!reading.isComplete()) {
        throw incomplete(reading, file);
    }
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    const std::string system = zvConsole::printable(reading.pdmSystemName());
    if (page.empty()) {
        std::printf("%s%s%s\n", zvConsole::printable(file.c_str()).c_str(), system.empty() ? "" : "  to  ",
                    system.c_str());
        zvConfigurationListing(configuration).print();
        return zvExitCode::success;
    }
    std::error_code error;
    if (std::filesystem::equivalent(file, page, error)) {
        throw zvStepFailure{zvExitCode::usage, "output", zvConsole::printable(page.c_str()),
                            "it is the configuration itself"};
    }
    const std::string title = "Mapping configuration" + (system.empty() ? "" : " for " + system);
    const std::unique_ptr<zvLifecyclePicture> picture = zvLifecyclePicture::load();
    if (picture == nullptr) {
        std::fprintf(stderr,
                     "zvgateway: lifecycles have no pictures: zvGraphvizPicture.so cannot be loaded\n");
    }
    zvReplacedFile::write(page, zvConfigurationPage(configuration, title, picture.get()).html());
    return zvExitCode::success;
}
