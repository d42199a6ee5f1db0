#ifndef ZV_CONFIGURATION_READING_H
#define ZV_CONFIGURATION_READING_H

#include <string>
#include <vector>

#include "zvFinding.h"
#include "zvLogListener.h"

class zvConfigurationDocument;

/// Reads a configuration file into the configuration manager, and keeps what the library says against it.
class zvConfigurationReading : private zvLogListener {
public:
    /// Reads the file. Throws the zvStepFailure of one that cannot be opened.
    explicit zvConfigurationReading(const std::string& file);

    /// Whether the file was read to its end.
    bool isComplete() const { return m_bComplete; }
    /// The remote system's name; empty when the file has none.
    const zvString& pdmSystemName() const { return m_strPdmSystemName; }
    /// One for each fault, however many messages the library has for it. `document` is the same file.
    std::vector<zvFinding> findings(const zvConfigurationDocument& document) const;

private:
    struct Complaint {
        zvFinding finding;
        int object = -1;  // the number of the object that was being read; -1 for none
    };

    void hear(zvLogLevel level, const zvString& message, const char* file, int line) override;

    std::vector<Complaint> m_complaints;
    std::string m_reasons;  // for the message that is to come
    bool m_bComplete = false;
    zvString m_strPdmSystemName;
};

#endif
