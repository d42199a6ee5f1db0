#ifndef ZV_CLIENT_CONFIG_CHECK_H
#define ZV_CLIENT_CONFIG_CHECK_H

#include <map>
#include <string>

#include "zvCheckReport.h"
#include "zvClientConfigKey.h"

/// Looks at each line of a home's "client-config.ini", and at the files that it names.
class zvClientConfigCheck {
public:
    zvClientConfigCheck(const zvString& file, zvCheckReport& report) : m_strFile(file), m_report(report) {}

    void run();
    /// The address of the local server; empty if there is none that can be used.
    const zvString& url() const { return m_strUrl; }

private:
    void checkLine(const std::string& line, int number);
    void checkKey(const zvString& name, const zvString& value, zvTextPosition position);
    void checkValue(const zvClientConfigKey& key, const zvString& value, const zvCheckPlace& place);
    void checkFile(const zvClientConfigKey& key, const zvString& value, const zvCheckPlace& place);
    void addError(const zvCheckPlace& place, std::string_view kind, const zvString& text);
    void addGood(const zvCheckPlace& place, const zvClientConfigKey& key);

    const zvString m_strFile;
    zvCheckReport& m_report;
    std::map<zvString, int> m_lines;  // of the keys, by their names
    zvString m_strUrl;
};

#endif
