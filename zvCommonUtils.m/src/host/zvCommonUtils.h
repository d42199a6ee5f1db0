#ifndef ZV_COMMON_UTILS_H
#define ZV_COMMON_UTILS_H

#include "zvExport.h"
#include "zvString.h"

/// What ties a gateway program to its installation: the gateway home, the client configuration below it, and
/// a few services of the host. Nothing throws; what is missing reads as an empty text or null.
class ZV_EXPORT zvCommonUtils {
public:
    zvCommonUtils();
    virtual ~zvCommonUtils();

    /// Fixes the name of the environment variable that holds the gateway home. The first call with a name
    /// wins, for the life of the process; false for every other.
    static bool setGatewayHomeEnvVariable(const zvString& name);
    /// The variable's name; "GATEWAY_HOME" is fixed when no other is.
    static zvString getGatewayHomeEnvVariable();
    /// The variable's value, read afresh; without one a line on standard output says so.
    static zvString getGatewayHomePath();
    /// The path of the file `name` in the gateway home's folder "config"; empty without a gateway home.
    static zvString getConfigurationFile(const zvString& name);
    static zvString getEnvironmentalVariable(const zvString& name);
    /// The value of "local-server-url" in the file "client-config.ini" of the gateway home's folder "config".
    /// What is missing is logged.
    static zvString getLocalServerUrl();
    /// The address of `function` in `library`, which is loaded if need be and never released.
    static void* getFunctionPtr(const char* library, const char* function);
    /// Local time as in "Sat May 21 11:12:22 2011", with a line feed behind it.
    static zvString getCurrentTime();
    static void sleep(unsigned long milliseconds);
    /// For the start of a program's main(): sets the locale to the user's, or to C.UTF-8 where the user's is
    /// not UTF-8 and the system has a choice. Nothing else in the library changes the locale.
    static void adoptUserLocale();
    /// Whether the text is "true" or "false", ignoring case.
    static bool validBooleanValue(const zvString& text);
};

#endif
