#ifndef ZV_CND_CONDITION_H
#define ZV_CND_CONDITION_H

#include <cstdint>

#include "zvICndCondition.h"

/// A reference-counted handle to a condition; may be null. The count is not atomic: all handles to one
/// condition belong to one thread at a time.
///
/// zvCndConditionFactory converts a handle to one of another type to the same condition.
template <class Implementation>
class zvCndHandle {
public:
    /// Shares the ownership of `pointer`, which may be null.
    zvCndHandle(Implementation* pointer = nullptr) : m_pCondition(pointer) { take(); }
    zvCndHandle(const zvCndHandle& other) : m_pCondition(other.m_pCondition) { take(); }
    zvCndHandle(zvCndHandle&& other) noexcept : m_pCondition(other.m_pCondition) {
        other.m_pCondition = nullptr;
    }
    ~zvCndHandle() { release(); }

    /// Releases its own condition first. Precondition: `other` is not part of that condition.
    zvCndHandle& operator=(const zvCndHandle& other) {
        if (this != &other) {
            release();
            m_pCondition = other.m_pCondition;
            take();
        }
        return *this;
    }
    zvCndHandle& operator=(zvCndHandle&& other) noexcept {
        if (this != &other) {
            release();
            m_pCondition = other.m_pCondition;
            other.m_pCondition = nullptr;
        }
        return *this;
    }

    /// The condition, owned jointly by its handles; null for a null handle.
    Implementation* operator->() const { return m_pCondition; }
    bool IsNull() const { return m_pCondition == nullptr; }
    /// Orders by identity: handles to the same condition are equivalent.
    bool operator<(const zvCndHandle& other) const {
        return reinterpret_cast<std::uintptr_t>(m_pCondition) <
               reinterpret_cast<std::uintptr_t>(other.m_pCondition);
    }

private:
    void take() {
        if (m_pCondition != nullptr) {
            m_pCondition->AddRef();
        }
    }
    void release() {
        if (m_pCondition != nullptr) {
            m_pCondition->Release();
        }
    }

    Implementation* m_pCondition;
};

/// A handle to a condition of any type.
using zvCndCondition = zvCndHandle<zvICndCondition>;

#endif
