#ifndef ZV_CONDITION_TEST_SUPPORT_H
#define ZV_CONDITION_TEST_SUPPORT_H

#include <string>

#include "zvCndConditionFactory.h"
#include "zvCndContext.h"
#include "zvCndParsingUtils.h"
#include "zvTestSupport.h"

inline zvCndCondition parse(const std::string& text) {
    return zvCndParsingUtils::createConditionStructure(text.c_str());
}

inline std::string write(const zvCndCondition& condition) {
    return narrow(zvCndParsingUtils::createConditionString(condition));
}

inline void add(zvCndContext& context, const char* name, const zvValue& value) {
    zvAttribute attribute(name, value);
    EXPECT_TRUE(context.addAttribute(attribute));
}

/// The reference count of a condition, including the given handle.
template <class Handle>
int owners(const Handle& handle) {
    handle->AddRef();
    return handle->Release();
}

/// A custom condition with a fixed result that counts its live instances and its evaluations.
class FixedCondition : public zvICndCondition {
public:
    explicit FixedCondition(bool result) : m_bResult(result) { ++living; }
    ~FixedCondition() override { --living; }

    bool evaluate(const zvCndContext&) const override {
        ++evaluations;
        return m_bResult;
    }

    static inline int living = 0;
    static inline int evaluations = 0;

private:
    bool m_bResult;
};

inline zvCndCondition fixed(bool result) { return new FixedCondition(result); }

#endif
