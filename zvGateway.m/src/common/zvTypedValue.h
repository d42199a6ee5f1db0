#ifndef ZV_TYPED_VALUE_H
#define ZV_TYPED_VALUE_H

#include "zvCommonUtils.h"
#include "zvValue.h"

/// Sets `value` to that of type `type` which a text from outside stands for. The library reads a Boolean as a
/// number; people and other systems write "true" and "false" as well.
inline void setTypedValue(zvValue& value, const zvString& text, zvDataTypeEnum type) {
    constexpr int precision = 3;
    if (type == zvDataTypeBoolean && zvCommonUtils::validBooleanValue(text)) {
        value.setBoolValue(text.toBoolean());
    } else {
        value.setValue(text, type, precision);
    }
}

inline zvValue toTypedValue(const zvString& text, zvDataTypeEnum type) {
    zvValue value;
    setTypedValue(value, text, type);
    return value;
}

#endif
