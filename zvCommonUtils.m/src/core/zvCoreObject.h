#ifndef ZV_CORE_OBJECT_H
#define ZV_CORE_OBJECT_H

#include "zvExport.h"

/// The empty root of the library's object classes: deletable through a pointer to it, and nothing more.
class ZV_EXPORT zvCoreObject {
public:
    zvCoreObject() = default;
    zvCoreObject(const zvCoreObject&) = default;
    zvCoreObject& operator=(const zvCoreObject&) = default;
    virtual ~zvCoreObject();
};

/// The root of the common utilities' objects.
class ZV_EXPORT zvCoreObjectCommon : public zvCoreObject {};

/// The root of the configuration's objects.
class ZV_EXPORT zvCoreObjectCfg : public zvCoreObject {};

#endif
