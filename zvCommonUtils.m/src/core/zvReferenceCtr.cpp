#include "zvReferenceCtr.h"

zvReferenceCtr::zvReferenceCtr(const zvReferenceCtr& other) : zvCoreObject(other) {}

zvReferenceCtr::~zvReferenceCtr() = default;

// The count says who owns this object, whatever its content.
zvReferenceCtr& zvReferenceCtr::operator=(const zvReferenceCtr&) { return *this; }

int zvReferenceCtr::AddRef() { return ++m_count; }

int zvReferenceCtr::Release() {
    if (--m_count > 0) {
        return m_count;
    }
    delete this;
    return 0;
}
