#ifndef ZV_ROAD_OPTIONS_H
#define ZV_ROAD_OPTIONS_H

#include <string>

/// How an event is to take its road: the options of the command line.
struct zvRoadOptions {
    /// Does everything but what leaves this host.
    bool isDryRun = false;
    /// Standard output is one JSON document, and everything else goes to standard error.
    bool asJson = false;
    /// Values that do not fit their declared types are warnings.
    bool isLenient = false;
    /// A log that cannot be written fails the event.
    bool requiresLog = false;
    /// A properties file with secrets, which only its owner may read; empty for none.
    std::string secretsFile;
    /// A file descriptor to read secrets from; -1 for none.
    int secretsDescriptor = -1;
};

#endif
