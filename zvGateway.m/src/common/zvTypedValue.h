#ifndef ZV_TYPED_VALUE_H
#define ZV_TYPED_VALUE_H

#include "zvCommonUtils.h"
#include "zvValue.h"

/// The value of type `type` that a text from outside stands for. The library reads a Boolean as a number;
/// people and other systems write "true" and "false" as well.
inline zvValue toTypedValue(const zvString& text, zvDataTypeEnum type) {
    constexpr int precision = 3;
    if (type == zvDataTypeBoolean && zvCommonUtils::validBooleanValue(text)) {
        return zvValue(text.toBoolean());
    }
    return {text, type, precision};
}

#endif
