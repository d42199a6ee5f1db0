#include "zvReferenceCtr.h"

zvReferenceCtr::~zvReferenceCtr() = default;

int zvReferenceCtr::AddRef() { return ++m_iCount; }

int zvReferenceCtr::Release() {
    if (--m_iCount > 0) {
        return m_iCount;
    }
    delete this;
    return 0;
}
