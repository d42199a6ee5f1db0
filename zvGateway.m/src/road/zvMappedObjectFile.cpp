#include "zvMappedObjectFile.h"

#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvFailure.h"
#include "zvFindingList.h"
#include "zvXMLParser.h"

namespace {

void requireXMLText(const zvObjectMapping::Attribute& attribute) {
    if (!zvXMLParser::isXMLText(attribute.value) || !zvXMLParser::isXMLText(attribute.to)) {
        throw zvStepFailure{zvConsole::printable(attribute.from),
                            "it has a character that an XML file cannot hold"};
    }
}

bool addAttribute(zvXMLParser& document, const zvObjectMapping::Attribute& attribute) {
    return document.addStartTag("Attribute") && document.addAttribute("Name", attribute.to) &&
           document.addAttribute("DataType", zvDataTypeWords::wordOf(attribute.type).data()) &&
           (attribute.value.empty() || document.addMemberValue(attribute.value)) && document.addEndTag();
}

}  // namespace

void zvMappedObjectFile::write(const zvString& file, const zvObjectMapping& mapping) {
    zvFindingList findings;
    zvXMLParser document(&findings);
    const zvCfgObject& object = mapping.object();
    bool isComplete = document.createXMLTree("MappedObject") &&
                      document.addAttribute("OOTBType", object.getOotbTypeStr()) &&
                      document.addAttribute("LocalType", object.getLocalCustomType()) &&
                      document.addAttribute("RemoteType", object.getRemoteCustomType());
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        requireXMLText(attribute);
        isComplete = isComplete && addAttribute(document, attribute);
    }
    if (!isComplete || !document.writeTreeToFile(file, "UTF-8")) {
        const std::string reason = findings.lastError();
        throw zvStepFailure{zvConsole::printablePath(file),
                            reason.empty() ? "the document could not be made" : reason};
    }
}
