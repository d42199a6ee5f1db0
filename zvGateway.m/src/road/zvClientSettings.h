#ifndef ZV_CLIENT_SETTINGS_H
#define ZV_CLIENT_SETTINGS_H

#include <string>
#include <vector>

#include "zvProperties.h"

/// The numbers of "client-config.ini" that the road itself needs.
class zvClientSettings {
public:
    /// Reads the file of the gateway home. Without one, every number has its default.
    zvClientSettings();

    /// The value of a key if it can be used; otherwise the default. One that cannot be used is then among
    /// faults().
    double number(const char* key, double byDefault);
    /// In sentences.
    const std::vector<std::string>& faults() const { return m_faults; }
    /// Tells the faults, on the console and in the log.
    void tellFaults() const;

private:
    zvProperties m_properties;
    std::vector<std::string> m_faults;
};

#endif
