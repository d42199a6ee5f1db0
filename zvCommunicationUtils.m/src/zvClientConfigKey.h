#ifndef ZV_CLIENT_CONFIG_KEY_H
#define ZV_CLIENT_CONFIG_KEY_H

#include <vector>

#include "zvExport.h"
#include "zvString.h"

/// A key of the file "client-config.ini" in the folder "config" of a gateway home, and what its value may be.
struct ZV_EXPORT zvClientConfigKey {
    /// What the value is.
    enum class Form {
        url,               ///< an address for http or https
        wholeNumber,       ///< in digits alone
        number,            ///< also with a fraction
        certificates,      ///< a PEM file of certificates
        file,              ///< any other file
        passwordVariable,  ///< the name of an environment variable
        choice,            ///< "on" or "off"
        text,              ///< anything
        names,             ///< names with commas between them
        rights,            ///< of directories, in octal digits, or "umask"
    };

    const char* name = nullptr;
    Form form = Form::url;
    /// The range of a number.
    int least = 0;
    int most = 0;

    /// All keys, in the order of the documentation.
    static const std::vector<zvClientConfigKey>& all();
    /// The key of that name; null for an unknown one.
    static const zvClientConfigKey* find(const zvString& name);

    /// Why an URL, a number, a choice or rights cannot be used, in a sentence; empty if it can, and for the
    /// other forms. A URL is not quoted: it may hold a password.
    zvString faultOf(const zvString& value) const;
};

#endif
