#ifndef ZV_REFERENCE_CTR_H
#define ZV_REFERENCE_CTR_H

#include "zvCoreObject.h"

/// The base of reference-counted heap objects. The count is not atomic: one thread at a time. It starts at 0,
/// so that the creator has to call AddRef() to own the object. A copy has no owners yet, and an assignment
/// changes no owners.
class ZV_EXPORT zvReferenceCtr : public zvCoreObject {
public:
    zvReferenceCtr() = default;
    zvReferenceCtr(const zvReferenceCtr& other);
    zvReferenceCtr& operator=(const zvReferenceCtr& other);
    ~zvReferenceCtr() override;

    /// @return the new count.
    virtual int AddRef();
    /// @return the new count; at 0 or below the object has deleted itself.
    virtual int Release();

private:
    int m_count = 0;
};

#endif
