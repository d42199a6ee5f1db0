#ifndef ZV_TYPED_TEXT_H
#define ZV_TYPED_TEXT_H

#include "zvCommonUtils.h"
#include "zvValue.h"

/// The value that a text from outside has as a value of `type`. The library reads a Boolean as a number;
/// people and other systems write "true" and "false" as well.
inline zvValue zvTypedText(const zvString& text, zvDataTypeEnum type) {
    constexpr int precision = 3;
    if (type == zvDataTypeBoolean && zvCommonUtils::validBooleanValue(text)) {
        return zvValue(text.toBoolean());
    }
    return {text, type, precision};
}

#endif
