#include "zvJavaStart.h"

#include <algorithm>
#include <optional>

#include "zvClassArchive.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDeliveredFile.h"
#include "zvFSClient.h"
#include "zvFailure.h"
#include "zvHomeSettings.h"
#include "zvProcess.h"
#include "zvProcessEnd.h"

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

// The delivered Java client. Returns why there is none: Java would take classes from the folder that the
// program was started in, whoever put them there.
zvString offerClient() {
    const std::string jar = findDeliveredFile("../" ZV_DATA_FOLDER "/zvFileServerClient.jar",
                                              "../zvFileServerClient.j/zvFileServerClient.jar");
    if (jar.empty()) {
        return "there is no file server client: zvFileServerClient.jar is missing where the program is "
               "installed, and CLASSPATH names no other one";
    }
    zvProcess::setEnvironment("CLASSPATH", jar.c_str());
    return {};
}

bool choosesCollector(const std::string& option) {
    constexpr char prefix[] = "-XX:+Use";
    constexpr char suffix[] = "GC";
    return option.rfind(prefix, 0) == 0 && option.size() > sizeof(suffix) &&
           option.compare(option.size() + 1 - sizeof(suffix), sizeof(suffix) - 1, suffix) == 0;
}

// What an event's machine starts with. The site's come last, and so count.
struct Choice {
    Choice()
        : site(zvHomeSettings::javaOptions()),
          wantsArchive(!hasForeignOptions() && zvHomeSettings::wantsJavaArchive()) {
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
    const Options site;
    const bool wantsArchive;
};

void add(const Options& options) {
    for (const std::string& option : options) {
        zvFSClient::addJavaOption(option.c_str());
    }
}

}  // namespace

zvString zvJavaStart::prepare() {
    static bool isPrepared = false;
    if (isPrepared) {
        return {};
    }
    const bool isDelivered = !isSet("CLASSPATH");
    zvString refusal = isDelivered ? offerClient() : zvString();
    if (!refusal.empty()) {
        return refusal;
    }
    isPrepared = true;
    zvFSClient::setJavaEndObserver(zvProcessEnd::notify);
    const Choice choice;
    add(choice.own);
    add(zvProcess::signalOptions());
    if (isDelivered && choice.wantsArchive) {
        const zvClassArchive archive(choice.all());
        add(archive.options());
        if (archive.isMissing()) {
            missed = archive;
        }
    }
    add(choice.site);
    return {};
}

void zvJavaStart::leaveArchive() {
    if (missed) {
        missed->make();
        missed.reset();
    }
}

std::string zvJavaStart::makeArchive() {
    const auto failure = [](const zvString& reason) {
        return zvProgramFailure{zvExitCode::unexpected, "prepare-java", "", zvConsole::printable(reason)};
    };
    const zvString refusal = isSet("CLASSPATH") ? "CLASSPATH names another client" : offerClient();
    if (!refusal.empty()) {
        throw failure(refusal);
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
