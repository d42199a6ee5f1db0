#ifndef ZV_CFG_DESCRIPTION_H
#define ZV_CFG_DESCRIPTION_H

#include "zvCfgObject.h"

/// How the parts of a configuration are named towards people.
namespace zvCfgDescription {

/// As in `object "Part" -> "ReleasedPart"`, by the local and the remote type; `file object ...` for a
/// zvCfgFile.
ZV_EXPORT zvString ofObject(const zvCfgObject& object);
/// As in `lifecycle "Part"`.
ZV_EXPORT zvString ofLifecycle(const zvString& objectType);
/// As in `view collection "Engineering"`.
ZV_EXPORT zvString ofViewCollection(const zvString& name);

}  // namespace zvCfgDescription

#endif
