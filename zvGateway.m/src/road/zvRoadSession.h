#ifndef ZV_ROAD_SESSION_H
#define ZV_ROAD_SESSION_H

#include <chrono>
#include <optional>
#include <string>

#include "zvRoadOptions.h"
#include "zvSecretStore.h"
#include "zvSharedConnection.h"
#include "zvXMLParser.h"

/// What the events that one process takes share.
class zvRoadSession {
public:
    zvRoadOptions options;
    zvSharedConnection fileServer;

    /// The secrets of the sources that the options and the environment name, which are read by the first
    /// call. Throws the zvStepFailure of a source that cannot be used.
    const zvSecretStore& secrets();

    /// The time that each event may take in total, which the first call reads; zero without a limit.
    std::chrono::seconds eventTimeout();

    /// Keeps the XML library ready, whose start is most of the work of an event without files, until the
    /// session ends.
    void keepXmlReady();

    /// Fills the configuration manager from the file, unless it has been filled from it and the file has not
    /// changed since. Throws a zvStepFailure.
    void loadConfiguration(const zvString& file);

private:
    void readSecrets();

    zvSecretStore m_secrets;
    std::optional<std::chrono::seconds> m_eventTimeout;
    std::optional<zvXMLParser> m_xml;  // the library runs as long as it has a user
    bool m_bSecretsRead = false;
    // Of the configuration that the manager has; empty for none.
    zvString m_strConfigurationFile;
    std::string m_strConfigurationStamp;
};

#endif
