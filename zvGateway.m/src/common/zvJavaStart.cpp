#include "zvJavaStart.h"

#include <algorithm>
#include <optional>
#include <sstream>

#include "zvCharString.h"
#include "zvClassArchive.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDeliveredFile.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvProperties.h"

namespace {

using Options = std::vector<std::string>;

// A machine that runs for one event starts sooner with these, and one that runs for many does not grow with
// each. Of the collectors, G1 alone maps the objects of Java's own archive, which the others copy.
const Options ownOptions = {"-XX:+IgnoreUnrecognizedVMOptions", "-XX:TieredStopAtLevel=1", "-Xmn4m",
                            "-XX:-UsePerfData"};
constexpr char ownCollector[] = "-XX:+UseG1GC";

std::optional<zvClassArchive> missed;

bool isSet(const char* name) { return !zvCommonUtils::getEnvironmentalVariable(name).empty(); }

// These variables reach the machine, too, and may contradict.
bool hasForeignOptions() { return isSet("JAVA_TOOL_OPTIONS") || isSet("_JAVA_OPTIONS"); }

// False if the site has a client of its own.
bool offerClient() {
    if (isSet("CLASSPATH")) {
        return false;
    }
    const std::string jar = findDeliveredFile("../" ZV_DATA_FOLDER "/zvFileServerClient.jar",
                                              "../zvFileServerClient.j/zvFileServerClient.jar");
    if (!jar.empty()) {
        zvProcess::setEnvironment("CLASSPATH", jar.c_str());
    }
    return !jar.empty();
}

bool choosesCollector(const std::string& option) {
    constexpr char prefix[] = "-XX:+Use";
    constexpr char suffix[] = "GC";
    return option.rfind(prefix, 0) == 0 && option.size() > sizeof(suffix) &&
           option.compare(option.size() + 1 - sizeof(suffix), sizeof(suffix) - 1, suffix) == 0;
}

// What an event's machine starts with. The site's come last, and so count.
struct Choice {
    Choice() {
        zvProperties properties;
        const zvString file = zvCommonUtils::getConfigurationFile("client-config.ini");
        const bool isRead =
            zvDirFileUtils::isAccessible(file, zvDirFileUtils::readable) && properties.parse(file).isOk();
        std::istringstream words(isRead ? zvCharString(properties.getPropertyValue("java-options")).data()
                                        : "");
        for (std::string word; words >> word;) {
            site.push_back(word);
        }
        zvString archive = isRead ? properties.getPropertyValue("java-archive") : zvString();
        archive.trim();
        wantsArchive = archive != "off" && !hasForeignOptions();
        if (!hasForeignOptions()) {
            own = ownOptions;
            if (std::none_of(site.begin(), site.end(), choosesCollector)) {
                own.emplace_back(ownCollector);
            }
        }
    }

    Options all() const {
        Options options = own;
        options.insert(options.end(), site.begin(), site.end());
        return options;
    }

    Options own;
    Options site;
    bool wantsArchive = false;
};

void add(const Options& options) {
    for (const std::string& option : options) {
        zvFSClient::addJavaOption(option.c_str());
    }
}

}  // namespace

void zvJavaStart::prepare() {
    static bool isPrepared = false;
    if (isPrepared) {
        return;
    }
    isPrepared = true;
    const bool isDelivered = offerClient();
    const Choice choice;
    add(choice.own);
    if (isDelivered && choice.wantsArchive) {
        const zvClassArchive archive(choice.all());
        add(archive.options());
        if (archive.isMissing()) {
            missed = archive;
        }
    }
    add(choice.site);
}

void zvJavaStart::leaveArchive() {
    if (missed) {
        missed->make();
        missed.reset();
    }
}

std::string zvJavaStart::makeArchive() {
    const auto failure = [](const char* reason) {
        return zvProgramFailure{zvExitCode::unexpected, "prepare-java", "", reason};
    };
    if (!offerClient()) {
        throw failure("there is no delivered client, or CLASSPATH names another one");
    }
    const Choice choice;
    if (!choice.wantsArchive) {
        throw failure(
            "JAVA_TOOL_OPTIONS, _JAVA_OPTIONS or java-archive=off in client-config.ini rules it out");
    }
    zvClassArchive archive(choice.all());
    const std::string reason = archive.make();
    if (!reason.empty()) {
        throw failure(reason.c_str());
    }
    return archive.file().string();
}

void zvJavaStart::prepareArchive(const std::string& file, const std::vector<std::string>& options) {
    for (const std::string& option : options) {
        // A log that the site wants is an event's, which a second machine would overwrite.
        if (option.rfind("-Xlog", 0) != 0) {
            zvFSClient::addJavaOption(option.c_str());
        }
    }
    zvFSClient::addJavaOption(("-XX:ArchiveClassesAtExit=" + file).c_str());
    zvFSClient::addJavaOption("-Xlog:disable");
    zvFSClient::addJavaOption("-XX:+SuppressFatalErrorMessage");
}
