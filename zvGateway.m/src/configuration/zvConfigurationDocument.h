#ifndef ZV_CONFIGURATION_DOCUMENT_H
#define ZV_CONFIGURATION_DOCUMENT_H

#include <string>
#include <vector>

#include "zvFindingList.h"
#include "zvXMLParser.h"

/// A configuration file as it is written: what the library passes over without a word, and so cannot be seen
/// in what it read.
class zvConfigurationDocument {
public:
    /// A file that cannot be loaded is taken as one without content.
    explicit zvConfigurationDocument(const std::string& file);

    /// Elements and attributes that are not read where they stand, collections and lifecycles that are empty,
    /// and extensions whose "Import" or "Export" is neither "True" nor "False", and an "Index" that is no
    /// number.
    const std::vector<zvFinding>& findings() const { return m_findings; }

private:
    void readElement(const zvString& tag, const zvString& outer);
    zvString ownerAt(const zvString& tag, const zvString& outer) const;
    zvString attributeValue(const char* name) const;
    void checkExtension(const zvString& owner);
    void checkAttributes(const zvString& tag, const zvString& owner);
    void warn(std::string_view kind, const zvString& owner, const zvString& attribute, const zvString& text);

    zvFindingList m_ofDocument;  // known from the reading; with a sink the parser keeps positions
    zvXMLParser m_parser{&m_ofDocument, zvXMLOptions::withoutExternalEntities()};
    std::vector<zvFinding> m_findings;
};

#endif
