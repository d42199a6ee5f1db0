#ifndef ZV_XML_WRITER_H
#define ZV_XML_WRITER_H

#include "zvString.h"

#include <xercesc/framework/MemBufFormatTarget.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

/// Writing a document: first into bytes, which are then put where they belong, so that a document that cannot
/// be written does not cost a file its content. Each operation throws the zvException of a failure, which is
/// logged.
namespace zvXMLWriter {

/// The document with its declaration, lines ended by a single line feed, in `encoding`. Fails for an encoding
/// that is unknown or lacks a character of a name, and for a document that is too deep to be written.
void write(xercesc::DOMDocument& document, xercesc::XMLFormatTarget& target, const zvString& encoding);

void toFile(const xercesc::MemBufFormatTarget& bytes, const zvString& path);
void toStandardOutput(const xercesc::MemBufFormatTarget& bytes);
zvString toText(const xercesc::MemBufFormatTarget& bytes, const zvString& encoding);

}  // namespace zvXMLWriter

#endif
