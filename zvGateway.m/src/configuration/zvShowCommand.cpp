#include "zvShowCommand.h"

#include <cstdio>
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
        std::printf("%s%s%s\n", reading.input().shownName().c_str(), system.empty() ? "" : "  to  ",
                    system.c_str());
        zvConfigurationListing(configuration).print();
        return zvExitCode::success;
    }
    std::error_code error;
    if (std::filesystem::equivalent(file, page, error)) {
        throw zvProgramFailure{zvExitCode::usage, "output", zvConsole::printable(page.c_str()),
                               "it is the configuration itself"};
    }
    const zvString title =
        "Mapping configuration" + (system.empty() ? zvString() : " for " + reading.pdmSystemName());
    const std::unique_ptr<zvLifecyclePicture> picture = zvLifecyclePicture::load();
    if (picture == nullptr) {
        std::fprintf(stderr,
                     "zvgateway: lifecycles have no pictures: zvGraphvizPicture.so cannot be loaded\n");
    }
    const std::optional<zvTestedCases> cases = runCases ? std::optional(runCases()) : std::nullopt;
    zvReplacedFile::write(
        page, zvConfigurationPage(configuration, title, picture.get(), cases ? &*cases : nullptr).html());
    return zvExitCode::success;
}
