#ifndef ZV_EVENT_RECORD_H
#define ZV_EVENT_RECORD_H

#include <filesystem>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "zvEventArguments.h"
#include "zvEventHistory.h"
#include "zvProcess.h"

struct zvProgramFailure;

/// The record of an event, a file of its directory: who the event is, what has been done with it, and what
/// became of each attempt. An event that is run again goes on from there.
///
/// The file has one JSON object a line, in UTF-8, and grows by appending: a process that is killed leaves the
/// earlier lines, and a line without an end is ignored. What must not be done twice is flushed to the disk.
class zvEventRecord {
public:
    /// An event's arguments in UTF-8, without those that only say where the event is.
    struct Given {
        zvEventHistory::Arguments arguments;
        /// The names of the secrets among them, which stand here alone.
        std::vector<std::string> secrets;
    };
    static Given givenBy(const zvEventArguments& arguments);

    /// Takes an advisory lock on the file, held as long as the object lives, and reads it. Throws the
    /// zvStepFailure of a file that cannot be used, or that another process has locked.
    explicit zvEventRecord(const zvString& file);

    /// The event's identity, a UUID or what its caller gave; empty before the first attempt began.
    const zvString& eventId() const { return m_strEventId; }
    /// One printable text for each argument that differs from the recorded ones; none before the first
    /// attempt began.
    std::vector<std::string> differencesFrom(const Given& given) const;

    /// Begins an attempt. Throws the zvStepFailure of a record that cannot be written.
    void beginAttempt(const zvString& eventId, const Given& given, bool isDryRun);
    /// Returns once the event's identity is on the disk: from then on others may hear of the event. Throws a
    /// zvStepFailure.
    void secureIdentity();
    /// How many have begun.
    int attempts() const { return m_history.attempts; }
    /// Notes the object's type and key, for people.
    void setObject(const std::string& object);
    /// The object as it was noted last.
    std::string object() const;
    void setOutcome(const std::string& step, const std::string& outcome, const std::string& detail);
    /// Ends the attempt; `failure` is null for one that succeeded.
    void endAttempt(const zvProgramFailure* failure);

    /// Whether the file was sent as it is now; also true for a file that was sent and is no longer there.
    bool hasArrived(const zvString& path) const;
    /// To be called before the file is sent: what changes later has not arrived.
    void beginFile(const zvString& path);
    /// `isDurable` if something is done because of it that cannot be undone.
    void setArrived(const zvString& path, bool isDurable);

    using RemoteDirectory = zvEventHistory::RemoteDirectory;
    RemoteDirectory remoteDirectory() const { return m_history.remoteDirectory; }
    void setRemoteDirectory(RemoteDirectory state);

    bool isPosted() const { return m_history.isPosted; }
    void setPosted();

    /// Throws the zvStepFailure of a line that could not be written: what was done would be done again.
    void requireWritten() const;

private:
    void read();
    void addSecretDifferences(const std::vector<std::string>& given,
                              std::vector<std::string>& differences) const;
    void append(const nlohmann::ordered_json& line, bool isDurable);

    std::filesystem::path m_file;
    zvProcess::FileLock m_lock;
    zvEventHistory m_history;
    zvString m_strEventId;
    std::string m_strFault;
    bool m_bIdentitySecured = false;
    std::string m_strSending;  // the stamp of the file that is being sent
};

#endif
