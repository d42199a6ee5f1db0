#ifndef ZV_CLIENT_CONFIG_FILE_H
#define ZV_CLIENT_CONFIG_FILE_H

#include <optional>
#include <string>
#include <vector>

#include "zvString.h"

/// The lines of "client-config.ini", as the library reads them, but without a line of the log: some of its
/// keys count before the first one.
class zvClientConfigFile {
public:
    enum class Fault { none, noPair, noText, repeatedKey };
    struct Line {
        int number;
        zvString name;
        zvString value;
        Fault fault;
        /// Of a repeated key, the line that counts.
        int firstNumber;

        /// What is wrong with it, without its content, which may be a secret.
        zvString faultText() const;
    };

    explicit zvClientConfigFile(const std::string& content);
    /// That of the gateway home; without lines if there is none.
    static zvClientConfigFile ofHome();

    /// All but comments and empty lines.
    const std::vector<Line>& lines() const { return m_lines; }
    /// The value of the key without blanks around it.
    std::optional<zvString> value(const zvString& key) const;
    /// The first line with a fault, at which the library ends its reading; null for none.
    const Line* firstFaulty() const;

private:
    Line read(const std::string& line, int number) const;
    const Line* find(const zvString& key) const;

    std::vector<Line> m_lines;
};

#endif
