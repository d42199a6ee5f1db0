#ifndef ZV_CLIENT_SETTINGS_H
#define ZV_CLIENT_SETTINGS_H

#include <string>
#include <vector>

#include "zvClientConfigFile.h"

/// The numbers of "client-config.ini" that the road itself needs.
class zvClientSettings {
public:
    /// Without lines, every number has its default.
    explicit zvClientSettings(zvClientConfigFile file = zvClientConfigFile::ofHome());

    /// The value of a key if it can be used; otherwise the default. One that cannot be used is then among
    /// faults().
    double number(const char* key, double byDefault);
    /// In sentences.
    const std::vector<std::string>& faults() const { return m_faults; }
    /// Tells the faults, on the console and in the log.
    void tellFaults() const;

private:
    const zvClientConfigFile m_file;
    std::vector<std::string> m_faults;
};

#endif
