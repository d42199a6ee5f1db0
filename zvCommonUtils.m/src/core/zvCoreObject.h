#ifndef ZV_CORE_OBJECT_H
#define ZV_CORE_OBJECT_H

#include "zvExport.h"

/// The empty base of the library's object classes, with a virtual destructor.
class ZV_EXPORT zvCoreObject {
public:
    zvCoreObject() = default;
    zvCoreObject(const zvCoreObject&) = default;
    zvCoreObject& operator=(const zvCoreObject&) = default;
    virtual ~zvCoreObject();
};

/// The base of the common utilities' classes.
class ZV_EXPORT zvCoreObjectCommon : public zvCoreObject {};

/// The base of the configuration's classes.
class ZV_EXPORT zvCoreObjectCfg : public zvCoreObject {};

#endif
