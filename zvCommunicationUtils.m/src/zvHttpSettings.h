#ifndef ZV_HTTP_SETTINGS_H
#define ZV_HTTP_SETTINGS_H

#include "zvString.h"

/// What the client configuration and the environment say about requests.
struct zvHttpSettings {
    /// Reads "config/client-config.ini" under the gateway home. A missing home, file or key is not logged:
    /// the defaults apply. A value that cannot be used is warned of.
    static zvHttpSettings read();

    long connectSeconds = 30;
    long stallSeconds = 60;
    /// From the beginning of a request to the end of its answer.
    long totalSeconds = 600;
    /// In bytes, of an answer with its headers.
    long answerLimit = 1 << 20;
    /// Trusted certificates in PEM, instead of the system's; empty for the system's.
    zvString caFile;
    /// A folder of trusted certificates as OpenSSL's c_rehash prepares it; empty for the system's.
    zvString caFolder;
    /// In PEM, or PKCS#12 if the name ends in ".p12" or ".pfx"; empty for none.
    zvString clientCertificate;
    /// Empty if it is in the certificate's file.
    zvString clientKey;
    zvString clientKeyPassword;
};

#endif
