#ifndef ZV_SECRET_STORE_H
#define ZV_SECRET_STORE_H

#include <map>
#include <string>

#include "zvString.h"

/// The secrets that do not come on the command line, by name. Whatever their names, they are masked from then
/// on wherever the program or the library shows an argument.
///
/// Each read operation throws the zvStepFailure of what it cannot use: a source that cannot be read, a line
/// that is no secret, a name that is there already. No failure tells a value.
class zvSecretStore {
public:
    /// Reads a file with one `name=value` a line, which only its owner may read.
    void readFile(const std::string& file);
    /// Reads the same from an open file descriptor, and closes it.
    void readDescriptor(int descriptor);
    /// Reads a folder with a file for each secret: the file's name is the secret's, its content the value,
    /// without the line end after it. Subfolders, and names that begin with a dot, are not read.
    void readFolder(const std::string& folder);

    bool empty() const { return m_secrets.empty(); }
    /// Where the secret is from; empty for a name that is not there.
    std::string sourceOf(const zvString& name) const;

    /// Calls `visit(name, value)` for each secret, in the order of names.
    template <class Visit>
    void forEach(Visit visit) const {
        for (const auto& [name, secret] : m_secrets) {
            visit(name, secret.value);
        }
    }

private:
    struct Secret {
        zvString value;
        std::string source;
    };

    void readLines(int descriptor, const std::string& source);
    std::string add(const std::string& name, const std::string& value, const std::string& source);

    std::map<zvString, Secret> m_secrets;
};

#endif
