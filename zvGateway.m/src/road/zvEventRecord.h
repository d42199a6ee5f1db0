#ifndef ZV_EVENT_RECORD_H
#define ZV_EVENT_RECORD_H

#include <filesystem>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "zvEventArguments.h"

struct zvProgramFailure;

/// The record of an event, a file of its directory: who the event is, what has been done with it, and what
/// became of each attempt. An event that is run again goes on from there.
///
/// The file has one JSON object a line, in UTF-8, and grows by appending: a process that is killed leaves the
/// earlier lines, and a line without an end is ignored. What must not be done twice is flushed to the disk.
class zvEventRecord {
public:
    /// Arguments of the command line in UTF-8, without those that are secrets or only say where the event is.
    using Arguments = std::map<std::string, std::string>;
    static Arguments argumentsOf(const zvEventArguments& arguments);

    /// The path of the record in an event's directory of this name.
    static zvString fileIn(const zvString& directory, const zvString& name);
    /// The identity in the file; empty if there is none. Takes no lock, and leaves every fault to the
    /// constructor.
    static zvString eventIdIn(const zvString& file);

    /// Reads the file, if there is one, and takes an advisory lock on it, held until the process exits.
    /// Throws a zvStepFailure when another process is running the event, or the file cannot be read.
    explicit zvEventRecord(const zvString& file);

    /// The event's identity, a UUID or what its caller gave; empty before the first attempt began.
    const zvString& eventId() const { return m_strEventId; }
    /// One printable text for each argument that differs from the recorded ones; none before the first
    /// attempt began.
    std::vector<std::string> differencesFrom(const Arguments& arguments) const;

    /// Begins an attempt. Throws the zvStepFailure of a record that cannot be written.
    void beginAttempt(const zvString& eventId, const Arguments& arguments);
    void setOutcome(const std::string& step, const std::string& outcome, const std::string& detail);
    /// Ends the attempt; `failure` is null for one that succeeded.
    void endAttempt(const zvProgramFailure* failure);

    /// Whether the file was sent as it is now; also true for a file that was sent and is no longer there.
    bool hasArrived(const zvString& path) const;
    /// To be called before the file is sent: what changes later has not arrived.
    void beginFile(const zvString& path);
    void setArrived(const zvString& path);

    /// Who made the event's directory on the file server. `claimed` is noted before it is made: a process
    /// that is killed then may have made it or not.
    enum class RemoteDirectory { unknown, claimed, own };
    RemoteDirectory remoteDirectory() const { return m_remoteDirectory; }
    void setRemoteDirectory(RemoteDirectory state);

    bool isPosted() const { return m_bPosted; }
    void setPosted();

    /// Throws the zvStepFailure of a line that could not be written: what was done would be done again.
    void requireWritten() const;

private:
    void read();
    void understand(const std::string& line);
    void append(const nlohmann::ordered_json& line, bool isDurable);

    std::filesystem::path m_file;
    std::string m_strFault;
    bool m_bTornEnd = false;
    int m_attempt = 0;
    bool m_bPosted = false;
    RemoteDirectory m_remoteDirectory = RemoteDirectory::unknown;
    zvString m_strEventId;
    Arguments m_arguments;
    std::string m_strSending;                       // the stamp of the file that is being sent
    std::map<std::string, std::string> m_arrivals;  // path to stamp
};

#endif
