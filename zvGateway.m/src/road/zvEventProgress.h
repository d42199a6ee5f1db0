#ifndef ZV_EVENT_PROGRESS_H
#define ZV_EVENT_PROGRESS_H

#include <filesystem>
#include <map>
#include <string>

#include "zvString.h"

/// What has been done with an event, in a file of the event's directory: an event that is run again resumes
/// there. Each fact is one appended line, so that a process that is killed leaves the earlier ones.
class zvEventProgress {
public:
    /// Reads the file, if there is one, and takes an advisory lock on it, held until the process exits.
    /// Throws a zvStepFailure when another process is running the event, or the file cannot be read.
    explicit zvEventProgress(const zvString& file);

    /// Whether the file was sent as it is now; also true for a file that was sent and is no longer there.
    bool hasArrived(const zvString& path) const;
    /// To be called before the file is sent: what changes later has not arrived.
    void begin(const zvString& path);
    void setArrived(const zvString& path);

    /// All files arrived, and those that had to be deleted are.
    bool isTransferred() const { return m_bTransferred; }
    void setTransferred();

    bool isPosted() const { return m_bPosted; }
    void setPosted();

    /// Throws the zvStepFailure of a fact that could not be written: what was done would be done again.
    void requireWritten() const;

private:
    void read();
    void understand(const std::string& line);
    void append(const std::string& line);

    std::filesystem::path m_file;
    std::string m_strFault;
    bool m_bTornEnd = false;
    bool m_bTransferred = false;
    bool m_bPosted = false;
    std::string m_strSending;                       // the stamp of the file that is being sent
    std::map<std::string, std::string> m_arrivals;  // path to stamp
};

#endif
