#ifndef ZV_CND_CONDITION_H
#define ZV_CND_CONDITION_H

#include <cstdint>

#include "zvICndCondition.h"

/// A counted pointer to a condition, or to nothing: the condition lives as long as a handle on it does. The
/// count is a plain number, so that all handles on one condition belong to one thread at a time.
///
/// zvCndConditionFactory turns a handle into one of another type on the same condition.
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

    /// Releases the own condition before it takes the other's: `other` must not live in what is released.
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

    /// The condition, owned by its handles; null for a null handle.
    Implementation* operator->() const { return m_pCondition; }
    bool IsNull() const { return m_pCondition == nullptr; }
    /// Orders by identity: two handles are equal when they hold the same condition.
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

/// A handle on a condition of any type.
using zvCndCondition = zvCndHandle<zvICndCondition>;

#endif
