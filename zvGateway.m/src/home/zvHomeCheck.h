#ifndef ZV_HOME_CHECK_H
#define ZV_HOME_CHECK_H

#include <functional>
#include <string>

#include "zvCheckReport.h"
#include "zvSecretStore.h"

/// `zvgateway check --home`: looks at everything in the gateway home, and at what it names. The home is not
/// changed, and nothing is logged.
class zvHomeCheck {
public:
    /// Adds the faults of a configuration file, as zvConfigurationFileCheck::addFaults() does.
    using CheckConfiguration =
        std::function<bool(const std::string& file, const zvString& name, zvCheckReport&)>;

    zvHomeCheck(zvCheckReport& report, CheckConfiguration checkConfiguration)
        : m_report(report), m_checkConfiguration(std::move(checkConfiguration)) {}

    /// Offline, the servers are left out. The secrets are those that the file server's configuration may
    /// name.
    void run(bool isOffline, const zvSecretStore& secrets);

private:
    bool checkFolder(const zvString& home);
    void checkFileNames(const zvString& folder);
    void checkLocalServer(bool isOffline);
    void checkLog();
    void checkConfiguration();
    void checkFileServer(bool isOffline, const zvSecretStore& secrets);
    bool isThere(const zvString& file, const char* without);

    zvCheckReport& m_report;
    const CheckConfiguration m_checkConfiguration;
};

#endif
