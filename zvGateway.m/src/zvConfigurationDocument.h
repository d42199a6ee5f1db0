#ifndef ZV_CONFIGURATION_DOCUMENT_H
#define ZV_CONFIGURATION_DOCUMENT_H

#include <string>
#include <vector>

#include "zvFinding.h"
#include "zvXMLParser.h"

/// A configuration file as it is written: what the library passes over without a word, and so cannot be seen
/// in what it read.
class zvConfigurationDocument {
public:
    /// A file that cannot be loaded is taken as one without content.
    explicit zvConfigurationDocument(const std::string& file);

    /// Elements that are not read where they stand, collections and lifecycles that are empty, and extensions
    /// whose "Import" or "Export" is no word.
    const std::vector<zvFinding>& findings() const { return m_findings; }
    /// The name of the object, or file object, that is the `i`-th in the file; empty out of range.
    std::string objectAt(int i) const;

private:
    void readElement(const zvString& tag, const std::string& outer);
    std::string ownerAt(const zvString& tag, const std::string& outer);
    void checkExtension(const std::string& owner);
    void warn(const std::string& owner, const std::string& what);

    zvXMLParser m_parser;
    std::vector<zvFinding> m_findings;
    std::vector<std::string> m_objects;
};

#endif
