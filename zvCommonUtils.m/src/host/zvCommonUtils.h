#ifndef ZV_COMMON_UTILS_H
#define ZV_COMMON_UTILS_H

#include "zvExport.h"
#include "zvString.h"

/// The environment of a gateway program: the gateway home, the client configuration in it and a few services
/// of the host. Nothing throws; whatever is missing is returned as an empty string or null.
class ZV_EXPORT zvCommonUtils {
public:
    zvCommonUtils();
    virtual ~zvCommonUtils();

    /// Sets the name of the environment variable that holds the gateway home. Only the first call with a name
    /// takes effect, for the lifetime of the process; any other returns false.
    static bool setGatewayHomeEnvVariable(const zvString& name);
    /// The variable's name. If none was set, this sets it to "GATEWAY_HOME".
    static zvString getGatewayHomeEnvVariable();
    /// The variable's current value; if it is unset, a line on standard output says so.
    static zvString getGatewayHomePath();
    /// The path of the file `name` in the gateway home's folder "config"; empty without a gateway home.
    static zvString getConfigurationFile(const zvString& name);
    /// The value of the environment variable `name`; empty if it is unset.
    static zvString getEnvironmentalVariable(const zvString& name);
    /// The value of "local-server-url" in "config/client-config.ini" under the gateway home. A missing home,
    /// file or key is logged.
    static zvString getLocalServerUrl();
    /// The address of `function` in the dynamic library `library`, which is loaded on demand and never
    /// unloaded; null if either is missing.
    static void* getFunctionPtr(const char* library, const char* function);
    /// The local time, for example "Sat May 21 11:12:22 2011", followed by a line feed.
    static zvString getCurrentTime();
    /// Blocks the calling thread.
    static void sleep(unsigned long milliseconds);
    /// For the start of a program's main(): sets the locale to the user's, with the characters of C.UTF-8
    /// where that is "C" or one that the system lacks, and with the decimal point of "C". Nothing else in the
    /// library changes the locale.
    static void adoptUserLocale();
    /// The same for a program whose narrow texts are UTF-8 whatever the locale: those that it gives to the
    /// library and gets from it, paths included. On Windows, where no locale has UTF-8, such a program's
    /// texts and names of files may have any character.
    static void adoptUtf8();
    /// Whether `text` is "true" or "false", case-insensitively.
    static bool validBooleanValue(const zvString& text);
};

#endif
