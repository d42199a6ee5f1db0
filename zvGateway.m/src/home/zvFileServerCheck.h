#ifndef ZV_FILE_SERVER_CHECK_H
#define ZV_FILE_SERVER_CHECK_H

#include <map>
#include <vector>

#include "zvCheckReport.h"
#include "zvJavaProperties.h"
#include "zvTransferObserver.h"

/// Looks at a home's "fileserver.properties", Java and its client, and at the file server: whether the
/// account may log in, and may write and remove a file.
class zvFileServerCheck : private zvTransferObserver {
public:
    zvFileServerCheck(const zvString& file, zvCheckReport& report);

    void run(bool isOffline);

private:
    bool findJava();
    bool findClient();
    // Faults of values, by their keys; an empty key is that of the file.
    using Faults = std::map<zvString, zvString>;
    Faults askClient();
    void checkKeys(Faults faults);
    void checkKey(const zvJavaProperties::Entry& key, Faults& faults);
    void connect();
    void addError(const zvCheckPlace& place, std::string_view kind, const zvString& text);

    void fileTransferred(const zvString&, zvInt64, zvInt64) override {}
    void notice(const zvString& text) override;

    const zvString m_strFile;
    zvCheckReport& m_report;
    // The keys that the client knows; none for a client of the site's own.
    std::vector<zvString> m_known;
    std::map<zvString, int> m_lines;  // of the keys, by their names
    bool m_bDelivered;                // whether the client is the delivered one
    bool m_bAsked = false;            // whether the client has looked at the values
};

#endif
