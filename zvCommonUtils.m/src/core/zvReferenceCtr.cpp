#include "zvReferenceCtr.h"

zvReferenceCtr::~zvReferenceCtr() = default;

int zvReferenceCtr::AddRef() { return ++m_count; }

int zvReferenceCtr::Release() {
    if (--m_count > 0) {
        return m_count;
    }
    delete this;
    return 0;
}
