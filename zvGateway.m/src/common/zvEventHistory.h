#ifndef ZV_EVENT_HISTORY_H
#define ZV_EVENT_HISTORY_H

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "zvString.h"

/// What the record of an event says: who the event is, what has been done with it, and what became of its
/// last attempt. Texts are UTF-8; times are UTC, as in "2026-11-25T10:15:00.123Z".
struct zvEventHistory {
    using Arguments = std::map<std::string, std::string>;
    /// Who made the event's directory on the file server. `claimed` is noted before it is made: a process
    /// that is killed then may have made it or not.
    enum class RemoteDirectory { unknown, claimed, own };
    /// The version of the record's format that this program writes.
    static constexpr int formatVersion = 1;
    /// Of the record's name, after that of the event's directory.
    static constexpr const char* fileSuffix = "_record.jsonl";
    static constexpr const char* remoteDirectoryWords[] = {"unknown", "claimed", "own"};
    struct Step {
        std::string name;
        std::string outcome;
        std::string detail;
    };
    /// `state` does without the steps, the files that arrived and the remote directory, for a reader of many
    /// records.
    enum class Detail { state, all };

    /// Empty before the first attempt began.
    std::string eventId;
    Arguments arguments;
    /// The names of the arguments whose values are secrets, which the record does not have.
    std::vector<std::string> secrets;
    /// False for the record of a version that did not note them.
    bool knowsSecrets = false;
    /// The object's type and key; empty until it is mapped.
    std::string object;

    int attempts = 0;
    /// When the first attempt, and the last one, began.
    std::string firstBegin;
    std::string begin;
    std::string host;
    unsigned long pid = 0;
    bool isDryRun = false;
    /// Of the last attempt.
    std::vector<Step> steps;
    /// When the last attempt ended; empty if it did not.
    std::string end;
    int exitCode = 0;
    /// What the last attempt failed in, on and why; empty when it did not.
    std::string failedStep;
    std::string failedSubject;
    std::string reason;

    /// The files that arrived, by path, with their size and time of change at that time.
    std::map<std::string, std::string> arrivals;
    RemoteDirectory remoteDirectory = RemoteDirectory::unknown;
    bool isPosted = false;

    /// Whether the file ends with a line that a crash has cut off, which is ignored.
    bool hasTornEnd = false;

    /// Whether a record has this argument: it is no secret, and says more than where the event is.
    static bool isRecorded(const zvString& key, const zvString& value);
    /// Whether this argument only says where the event is, or who: the record has it in another way.
    static bool isPlace(const zvString& key);

    /// Reads the record. Returns why it cannot be used, in printable words; empty if it can. A file that is
    /// not there is reported in `error` alone.
    std::string read(const std::filesystem::path& file, Detail detail, std::error_code& error);

private:
    std::string understand(std::string_view line, Detail detail);
};

#endif
