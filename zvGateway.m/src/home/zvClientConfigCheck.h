#ifndef ZV_CLIENT_CONFIG_CHECK_H
#define ZV_CLIENT_CONFIG_CHECK_H

#include <string>

#include "zvCheckReport.h"
#include "zvClientConfigFile.h"
#include "zvClientConfigKey.h"

/// Looks at each line of a home's "client-config.ini", and at the files that it names.
class zvClientConfigCheck {
public:
    zvClientConfigCheck(const zvString& file, zvCheckReport& report) : m_strFile(file), m_report(report) {}

    void run();
    /// The address of the local server; empty if there is none that can be used.
    const zvString& url() const { return m_strUrl; }

private:
    void checkLine(const zvClientConfigFile::Line& line);
    void checkValue(const zvClientConfigKey& key, const zvString& value, const zvCheckPlace& place);
    void checkFile(const zvClientConfigKey& key, const zvString& value, const zvCheckPlace& place);
    void addError(const zvCheckPlace& place, std::string_view kind, const zvString& text);
    void addGood(const zvCheckPlace& place, const zvClientConfigKey& key);

    const zvString m_strFile;
    zvCheckReport& m_report;
    bool m_bHasUrl = false;
    zvString m_strUrl;
};

#endif
