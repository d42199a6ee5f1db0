#include "zvBatchCommand.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>

#define XXH_INLINE_ALL  // NOLINT(readability-identifier-naming): the header's own
#include <xxhash.h>

#include "zvArgumentTexts.h"
#include "zvArgumentValue.h"
#include "zvCharString.h"
#include "zvConsole.h"
#include "zvEventArguments.h"
#include "zvHomeSettings.h"
#include "zvInterruption.h"
#include "zvProcess.h"
#include "zvUtf8Text.h"

namespace fs = std::filesystem;

namespace {

std::string printable(const std::string& text) { return zvConsole::printable(text.c_str()); }

zvEventOutcome refused(const std::string& reason) {
    zvEventOutcome outcome;
    outcome.setFailure({zvExitCode::usage, "input", "", reason});
    return outcome;
}

}  // namespace

zvExitCode zvBatchCommand::run(zvEventRunner& runner) {
    if (name.empty()) {
        name = fs::u8path(file).filename().string();
    }
    const auto failure = [this](const std::string& reason) {
        return zvProgramFailure{zvExitCode::usage, "batch", printable(file), reason};
    };
    std::ifstream opened;
    double size = 0;
    if (file != "-") {
        std::error_code error;
        const fs::file_status status = fs::status(fs::u8path(file), error);
        if (!fs::exists(status) || fs::is_directory(status)) {
            throw failure(error ? zvProcess::messageOf(error) : "it is no file");
        }
        size = fs::is_regular_file(status) ? static_cast<double>(fs::file_size(fs::u8path(file), error)) : 0;
        opened.open(fs::u8path(file), std::ios::binary);
        if (!opened.is_open()) {
            throw failure("it cannot be opened");
        }
    }
    std::ios::sync_with_stdio(false);
    runner.prepare();
    zvEventTally tally("batch", asJson, true, runner);
    try {
        takeAll(file == "-" ? std::cin : opened, size, runner, tally);
    } catch (const zvStepFailure& fault) {
        tally.finish();
        throw failure(fault.subject + ": " + fault.reason);
    }
    tally.finish();
    zvInterruption::throwIfRequested();
    return tally.hasAllArrived() ? zvExitCode::success : zvExitCode::events;
}

zvBatchInput::Format zvBatchCommand::inputFormat() const {
    std::string word = format;
    if (word.empty()) {
        const std::string extension = fs::u8path(file).extension().string();
        word = extension.empty() ? "" : extension.substr(1);
    }
    const auto* const found = std::find_if(std::begin(formats), std::end(formats),
                                           [&word](const auto& known) { return word == known.first; });
    return found == std::end(formats) ? zvBatchInput::Format::unknown : found->second;
}

void zvBatchCommand::takeAll(std::istream& stream, double size, zvEventRunner& runner, zvEventTally& tally) {
    const std::unique_ptr<zvBatchInput> input = zvBatchInput::open(stream, inputFormat());
    zvBatchEntry entry;
    while (zvProcess::notedSignal() == 0 && input->next(entry)) {
        tally.begin(entry.line);
        const zvEventOutcome outcome = take(entry, runner);
        tally.add(outcome, size > 0 ? static_cast<double>(input->bytes()) / size : -1);
        const bool isFailure = outcome.exitCode != zvExitCode::success;
        // Without a gateway home no other event arrives either.
        if (isFailure && (stopsOnError || outcome.exitCode == zvExitCode::gatewayHome)) {
            break;
        }
    }
}

zvEventOutcome zvBatchCommand::take(const zvBatchEntry& entry, zvEventRunner& runner) const {
    if (!entry.fault.empty()) {
        return refused(entry.fault);
    }
    if (!key.empty() && entry.find(key) == nullptr) {
        return refused("it has no \"" + printable(key) + "\", which identifies it");
    }
    if (entry.find("EventShadowDir") != nullptr) {
        return refused("\"EventShadowDir\" is made from the identity of the entry");
    }
    zvArgumentTexts texts;
    for (const auto& [name, value] : entry.arguments) {
        const std::string fault = texts.add(name, value);
        if (!fault.empty()) {
            return refused(fault);
        }
    }
    const std::string* const own = entry.find("RootShadowDir");
    const std::string root =
        own == nullptr ? argumentValue(common, "RootShadowDir") : zvCharString(fromUtf8(*own)).data();
    if (root.empty()) {
        return refused("\"RootShadowDir\" is missing");
    }
    std::vector<std::string> arguments = common;
    for (std::string& text : texts.take()) {
        arguments.push_back(std::move(text));
    }
    return runIn(root, entry, std::move(arguments), runner);
}

zvEventOutcome zvBatchCommand::runIn(const std::string& root, const zvBatchEntry& entry,
                                     std::vector<std::string> arguments, zvEventRunner& runner) const {
    const std::string directory = directoryName(entry);
    const zvFoundEvent event = zvFoundEvent::in(fs::u8path(root) / directory, zvEventHistory::Detail::state);
    const bool isOfThisRun =
        event.history.pid == zvProcess::id() && event.history.host == zvProcess::hostName();
    if (event.state == zvFoundEvent::State::arrived && isRecordedAs(event.history, entry)) {
        if (isOfThisRun) {
            zvConsole::note("line " + std::to_string(entry.line) +
                            " repeats an earlier one, and is not taken a second time");
        }
        zvEventOutcome outcome = event.outcome();
        outcome.kind = zvEventOutcome::Kind::arrivedBefore;
        return outcome;
    }
    std::error_code error;
    {
        std::string fault;  // the road tells it
        const zvProcess::NewFileRights rights(zvHomeSettings::shadowMask(fault));
        fs::create_directory(fs::u8path(root) / directory, error);
    }
    if (error) {
        zvEventOutcome outcome;
        outcome.setFailure({zvExitCode::shadowDirectory, "shadow directory",
                            printable((fs::u8path(root) / directory).string()), zvProcess::messageOf(error)});
        return outcome;
    }
    arguments.push_back("EventShadowDir=" + directory);
    return runner.run(std::move(arguments), nullptr);
}

// The root is left out: the directory below it is the same wherever the root is.
std::string zvBatchCommand::directoryName(const zvBatchEntry& entry) const {
    std::string identity = name;
    const auto add = [&identity](const std::string& text) { identity.append(1, '\0').append(text); };
    if (!key.empty()) {
        add(*entry.find(key));
    } else {
        const std::map<std::string, std::string> sorted(entry.arguments.begin(), entry.arguments.end());
        for (const auto& [argument, value] : sorted) {
            add(argument);
            add(value);
        }
    }
    const XXH128_hash_t hash = XXH3_128bits(identity.data(), identity.size());
    constexpr std::size_t digits = 32;
    char text[digits + 1];
    std::snprintf(text, sizeof(text), "%016llx%016llx", static_cast<unsigned long long>(hash.high64),
                  static_cast<unsigned long long>(hash.low64));
    return text;
}

// Whether the record has the arguments that the event would have now. If not, the road says what differs.
bool zvBatchCommand::isRecordedAs(const zvEventHistory& history, const zvBatchEntry& entry) const {
    zvEventHistory::Arguments given;
    for (const std::string& argument : common) {
        zvString name;
        zvString value;
        if (zvEventArguments::splitArgument(argument.c_str(), name, value) &&
            zvEventHistory::isRecorded(name, value)) {
            given.emplace(zvUtf8::encode(name), zvUtf8::encode(value));
        }
    }
    for (const auto& [name, value] : entry.arguments) {
        if (zvEventHistory::isRecorded(fromUtf8(name), fromUtf8(value))) {
            given.emplace(name, value);
        }
    }
    return given == history.arguments;
}
