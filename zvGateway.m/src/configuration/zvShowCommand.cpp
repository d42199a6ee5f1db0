#include "zvShowCommand.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "zvConfigurationListing.h"
#include "zvConfigurationPage.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"
#include "zvReplacedFile.h"

zvExitCode zvShowCommand::run() const {
    const zvConfigurationReading reading(file, zvConfigurationReading::InvalidRule::endsTheParse);
    reading.requireComplete();
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    const std::string system = zvConsole::printable(reading.pdmSystemName());
    if (page.empty()) {
        zvConsole::write(reading.input().shownName() + (system.empty() ? "" : "  to  ") + system + "\n");
        zvConfigurationListing(configuration).print();
        return zvExitCode::success;
    }
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::equivalent(fs::u8path(file), fs::u8path(page), error)) {
        throw zvProgramFailure{zvExitCode::usage, "output", zvConsole::printable(page.c_str()),
                               "it is the configuration itself"};
    }
    const zvString title =
        "Mapping configuration" + (system.empty() ? zvString() : " for " + reading.pdmSystemName());
    std::string reason;
    const std::unique_ptr<zvLifecyclePicture> picture = zvLifecyclePicture::load(reason);
    if (picture == nullptr) {
        zvConsole::complain("lifecycles have no pictures: " + reason);
    }
    const std::optional<zvTestedCases> cases = runCases ? std::optional(runCases()) : std::nullopt;
    zvReplacedFile::write(
        page, zvConfigurationPage(configuration, title, picture.get(), cases ? &*cases : nullptr).html());
    return zvExitCode::success;
}
