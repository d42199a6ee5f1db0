#ifndef ZV_MAPPED_OBJECT_FILE_H
#define ZV_MAPPED_OBJECT_FILE_H

#include "zvObjectMapping.h"

/// The event's data file: the mapped object as an XML document.
namespace zvMappedObjectFile {

/// Throws the zvStepFailure of an attribute that an XML file cannot hold, and of a file that cannot be
/// written.
void write(const zvString& file, const zvObjectMapping& mapping);

}  // namespace zvMappedObjectFile

#endif
