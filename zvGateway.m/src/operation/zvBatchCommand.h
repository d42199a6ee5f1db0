#ifndef ZV_BATCH_COMMAND_H
#define ZV_BATCH_COMMAND_H

#include <string>
#include <vector>

#include "zvBatchInput.h"
#include "zvEventRunner.h"
#include "zvEventTally.h"
#include "zvFoundEvent.h"

/// The subcommand that takes the events of a file, one after the other in this process.
///
/// An entry's directory has a name made from the entry's identity, so that each is taken once: the batch that
/// is started again goes on with what stopped and leaves out what arrived.
class zvBatchCommand {
public:
    /// "-" for standard input.
    std::string file;
    /// The words of `--format`, and what they mean.
    static constexpr std::pair<const char*, zvBatchInput::Format> formats[] = {
        {"jsonl", zvBatchInput::Format::jsonLines},
        {"tsv", zvBatchInput::Format::tabSeparated},
        {"csv", zvBatchInput::Format::commaSeparated}};
    std::string format;
    /// What, beside the entry, makes its identity; empty for the file's name.
    std::string name;
    /// The key of the argument that identifies an entry; empty for all its arguments.
    std::string key;
    /// Of every event, `key=value` each in the locale's encoding.
    std::vector<std::string> common;
    bool stopsOnError = false;
    bool asJson = false;

    /// Throws the zvProgramFailure of what ends the whole batch.
    zvExitCode run(zvEventRunner& runner);

private:
    zvBatchInput::Format inputFormat() const;
    void takeAll(std::istream& stream, double size, zvEventRunner& runner, zvEventTally& tally);
    zvEventOutcome take(const zvBatchEntry& entry, zvEventRunner& runner) const;
    zvEventOutcome runIn(const std::string& root, const zvBatchEntry& entry,
                         std::vector<std::string> arguments, zvEventRunner& runner) const;
    std::string directoryName(const zvBatchEntry& entry) const;
    bool isRecordedAs(const zvEventHistory& history, const zvBatchEntry& entry) const;
};

#endif
