#ifndef ZV_XML_WRITER_H
#define ZV_XML_WRITER_H

#include "zvString.h"

#include <xercesc/framework/MemBufFormatTarget.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

/// Serialises documents: first into memory, so that a failure does not truncate an existing file. Each
/// operation logs the reason when it returns false.
namespace zvXMLWriter {

/// Serialises the document in `encoding`, with an XML declaration and line feeds as line ends. False for an
/// unknown encoding, for a name that it cannot encode and for a document that is nested too deeply.
bool write(xercesc::DOMDocument& document, xercesc::XMLFormatTarget& target, const zvString& encoding);

/// Writes the bytes to the file `path`, which is overwritten; false on an I/O error.
bool toFile(const xercesc::MemBufFormatTarget& bytes, const zvString& path);
/// Writes the bytes to standard output; false on an I/O error.
bool toStandardOutput(const xercesc::MemBufFormatTarget& bytes);
/// Decodes the bytes from `encoding` into `text`; false if that fails or gives an empty string.
bool toText(const xercesc::MemBufFormatTarget& bytes, const zvString& encoding, zvString& text);

}  // namespace zvXMLWriter

#endif
