#ifndef ZV_XML_WRITER_H
#define ZV_XML_WRITER_H

#include "zvString.h"

#include <xercesc/framework/MemBufFormatTarget.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

/// Serialises documents: first into memory, so that a failure does not truncate an existing file. Each
/// operation logs a failure and throws it as a zvException.
namespace zvXMLWriter {

/// Serialises the document in `encoding`, with an XML declaration and line feeds as line ends. Fails for an
/// unknown encoding, for a name that it cannot encode and for a document that is nested too deeply.
void write(xercesc::DOMDocument& document, xercesc::XMLFormatTarget& target, const zvString& encoding);

/// Writes the bytes to the file `path`, which is overwritten.
void toFile(const xercesc::MemBufFormatTarget& bytes, const zvString& path);
void toStandardOutput(const xercesc::MemBufFormatTarget& bytes);
/// Decodes the bytes from `encoding`.
zvString toText(const xercesc::MemBufFormatTarget& bytes, const zvString& encoding);

}  // namespace zvXMLWriter

#endif
