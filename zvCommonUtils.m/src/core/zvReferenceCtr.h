#ifndef ZV_REFERENCE_CTR_H
#define ZV_REFERENCE_CTR_H

#include "zvCoreObject.h"

/// Counts the owners of an object on the heap, on one thread at a time. The count starts at 0: the creator
/// calls AddRef() to own the object, and a Release() without that deletes it.
class ZV_EXPORT zvReferenceCtr : public zvCoreObject {
public:
    zvReferenceCtr() = default;
    zvReferenceCtr(const zvReferenceCtr&) = delete;
    zvReferenceCtr& operator=(const zvReferenceCtr&) = delete;
    ~zvReferenceCtr() override;

    /// @return the new count.
    virtual int AddRef();
    /// @return the new count; at 0 the object has deleted itself.
    virtual int Release();

private:
    int m_count = 0;
};

#endif
