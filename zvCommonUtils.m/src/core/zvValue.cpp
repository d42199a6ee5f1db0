#include "zvValue.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <utility>

#include "zvDatePattern.h"
#include "zvPlainNumber.h"
#include "zvStringUnits.h"

namespace {

constexpr int unsetInteger = -1;
constexpr float unsetFloat = -1.0F;

constexpr char noOrderOfBooleans[] = "On boolean datatype only equal to and not equal to action happens";

// Out of the range of float, the plain conversion would be undefined behaviour. What lies less than half a
// step beyond the largest float is rounded to it.
float toFloat(double value) {
    constexpr double largest = FLT_MAX;
    constexpr double firstInfinite = 0x1.ffffffp127;
    if (std::fabs(value) <= largest || std::isnan(value)) {
        return static_cast<float>(value);
    }
    const float magnitude =
        std::fabs(value) < firstInfinite ? FLT_MAX : std::numeric_limits<float>::infinity();
    return value > 0 ? magnitude : -magnitude;
}

int toInt(float value) {
    constexpr float limit = 2147483648.0F;
    return value > -limit && value < limit ? static_cast<int>(value) : INT_MIN;
}

zvDateTime toDate(const zvString& text) {
    zvDateTime date;
    date.setDate(text, zvDefaultDatePattern);
    return date;
}

// The message is set in both the exception and its result, since callers read either.
[[noreturn]] void fail(const char* message) {
    zvResult result;
    result.setMessage(message);
    zvException exception(result);
    exception.setMessage(message);
    throw zvException(exception);
}

}  // namespace

zvValue::zvValue() = default;

zvValue::zvValue(bool value) : zvValue() { setBoolValue(value); }

zvValue::zvValue(int value) : zvValue() { setIntValue(value); }

zvValue::zvValue(float value) : zvValue() { setFloatValue(value, m_precision); }

zvValue::zvValue(const zvString& value) : zvValue() { setStrValue(value); }

zvValue::zvValue(zvString&& value) : m_strValue(std::move(value)), m_dataType(zvDataTypeString) {}

zvValue::zvValue(const char* value) : zvValue(zvString(value)) {}

zvValue::zvValue(const wchar16* value) : zvValue(zvString(value)) {}

zvValue::zvValue(const char16_t* value) : zvValue(zvString(value)) {}

zvValue::zvValue(const zvDateTime& value) : zvValue() { setDateValue(value); }

zvValue::zvValue(const zvString& text, zvDataTypeEnum type, int precision) : zvValue() {
    setValue(text, type, precision);
}

zvValue::zvValue(const zvValue& other) = default;

zvValue::zvValue(zvValue&& other) noexcept = default;

zvValue::~zvValue() = default;

// Strong guarantee: the only copy that may throw comes first.
zvValue& zvValue::operator=(const zvValue& other) {
    m_strValue = other.m_strValue;
    m_bValue = other.m_bValue;
    m_remembered = other.m_remembered;
    m_integer = other.m_integer;
    m_float = other.m_float;
    m_precision = other.m_precision;
    m_dateValue = other.m_dateValue;
    m_dataType = other.m_dataType;
    return *this;
}

void zvValue::initialize() {
    m_bValue = false;
    m_remembered = nothing;
    m_integer = unsetInteger;
    m_float = unsetFloat;
    m_precision = 3;
    m_dataType = zvDataTypeNone;
}

void zvValue::copy(const zvValue& other) { *this = other; }

// The slots are as if they had never been used.
void zvValue::forget() {
    if (m_remembered != nothing) {
        m_remembered = nothing;
        m_integer = unsetInteger;
        m_float = unsetFloat;
    }
}

// What depends on the locale is left to be read when it is asked for: white space, and numbers that are no
// plain decimals.
void zvValue::rememberConstant() {
    forget();
    if (m_dataType != zvDataTypeString || m_strValue.empty() || m_integer != unsetInteger ||
        m_float != unsetFloat) {
        return;
    }
    m_remembered = textOfConstant;
    const zvPlainNumber number(m_strValue.data(), static_cast<std::size_t>(m_strValue.size()));
    if (number.isPlain()) {
        m_integer = zvString::convertUnicodeToInt(m_strValue);
        m_float = toFloat(number.value());
        m_remembered = static_cast<unsigned char>(textOfConstant | integerOfText |
                                                  (number.hasPoint() ? floatOfTextWithPoint : floatOfText));
    }
}

void zvValue::rememberName() {
    forget();
    if (m_dataType == zvDataTypeString && m_integer == unsetInteger && m_float == unsetFloat) {
        m_integer = static_cast<int>(zvStringUnits::hashOf(m_strValue));
        m_remembered = hashOfText;
    }
}

std::uint32_t zvValue::textHash() const {
    return remembers(hashOfText) ? static_cast<std::uint32_t>(m_integer) : zvStringUnits::hashOf(m_strValue);
}

bool zvValue::remembersFloat() const {
    return remembers(floatOfText) || (remembers(floatOfTextWithPoint) && zvPlainNumber::isPointOfLocale());
}

void zvValue::setBoolValue(bool value) {
    forget();
    m_bValue = value;
    m_dataType = zvDataTypeBoolean;
}

void zvValue::setIntValue(int value) {
    forget();
    m_integer = value;
    m_dataType = zvDataTypeInteger;
}

void zvValue::setFloatValue(float value, int precision) {
    forget();
    m_float = value;
    m_precision = precision;
    m_dataType = zvDataTypeFloat;
}

void zvValue::setStrValue(const zvString& value) {
    forget();
    m_strValue = value;
    m_dataType = zvDataTypeString;
}

void zvValue::setStrValue(zvString&& value) {
    forget();
    m_strValue.swap(value);
    m_dataType = zvDataTypeString;
}

void zvValue::setDateValue(const zvDateTime& value) {
    forget();
    m_dateValue = value;
    m_dataType = zvDataTypeDate;
}

void zvValue::setDataType(zvDataTypeEnum type) {
    forget();
    m_dataType = type;
}

void zvValue::setValue(const zvString& text, zvDataTypeEnum type, int precision) {
    initialize();
    switch (type) {
        case zvDataTypeInteger:
            setIntValue(zvString::convertUnicodeToInt(text));
            break;
        case zvDataTypeFloat:
            setFloatValue(toFloat(zvString::convertUnicodeToDouble(text)), precision);
            break;
        case zvDataTypeDate:
            setDateValue(toDate(text));
            break;
        case zvDataTypeBoolean:
            setBoolValue(zvString::convertUnicodeToBool(text));
            break;
        case zvDataTypeString:
        case zvDataTypeNone:
        default:
            setStrValue(text);
            break;
    }
}

bool zvValue::getBoolValue() const {
    if (remembers(integerOfText)) {
        return m_integer != 0;
    }
    switch (m_dataType) {
        case zvDataTypeBoolean:
            return m_bValue;
        case zvDataTypeString:
            return zvString::convertUnicodeToBool(m_strValue);
        default:
            fail("Data cannot be converted to boolean datatype");
    }
}

int zvValue::getIntValue() const {
    if (remembers(integerOfText)) {
        return m_integer;
    }
    switch (m_dataType) {
        case zvDataTypeInteger:
            return m_integer;
        case zvDataTypeString:
            return zvString::convertUnicodeToInt(m_strValue);
        case zvDataTypeFloat:
            return toInt(m_float);
        default:
            fail("Data cannot be converted to integer datatype");
    }
}

float zvValue::getFloatValue() const {
    if (remembersFloat()) {
        return m_float;
    }
    switch (m_dataType) {
        case zvDataTypeFloat:
            return m_float;
        case zvDataTypeString:
            return toFloat(zvString::convertUnicodeToDouble(m_strValue));
        case zvDataTypeInteger:
            return static_cast<float>(m_integer);
        default:
            fail("Data cannot be converted to float datatype");
    }
}

zvDateTime zvValue::getDateValue() const {
    switch (m_dataType) {
        case zvDataTypeDate:
            return m_dateValue;
        case zvDataTypeString:
            return toDate(m_strValue);
        default:
            fail("Data cannot be converted to date datatype");
    }
}

zvString zvValue::getStrValue() const { return getValue(); }

zvString zvValue::getValue() const {
    switch (m_dataType) {
        case zvDataTypeString:
            return m_strValue;
        case zvDataTypeInteger:
            return zvString(m_integer);
        case zvDataTypeFloat:
            return zvString(static_cast<double>(m_float));
        case zvDataTypeDate:
            return m_dateValue.getDateTime(zvDefaultDatePattern, "/", "-");
        case zvDataTypeBoolean:
            return zvString(m_bValue);
        case zvDataTypeNone:
        default:
            return {};
    }
}

// Compares the text forms; without copies for two Strings, the common case.
template <typename Compare>
bool zvValue::compareText(const zvValue& other, Compare compare) const {
    if (m_dataType == zvDataTypeString && other.m_dataType == zvDataTypeString) {
        return compare(m_strValue, other.m_strValue);
    }
    return compare(getValue(), other.getValue());
}

bool zvValue::operator==(const zvValue& other) const {
    switch (m_dataType) {
        case zvDataTypeInteger:
            return m_integer == other.getIntValue();
        case zvDataTypeFloat:
            return m_float == other.getFloatValue();
        case zvDataTypeDate:
            return m_dateValue == other.getDateValue();
        case zvDataTypeBoolean:
            return m_bValue == other.getBoolValue();
        default:
            return compareText(other,
                               [](const zvString& left, const zvString& right) { return left == right; });
    }
}

bool zvValue::operator<=(const zvValue& other) const {
    switch (m_dataType) {
        case zvDataTypeInteger:
            return m_integer <= other.getIntValue();
        case zvDataTypeFloat:
            return m_float <= other.getFloatValue();
        case zvDataTypeDate:
            return m_dateValue < other.getDateValue();
        case zvDataTypeBoolean:
            fail(noOrderOfBooleans);
        default:
            return compareText(other,
                               [](const zvString& left, const zvString& right) { return left < right; });
    }
}

bool zvValue::operator>=(const zvValue& other) const {
    switch (m_dataType) {
        case zvDataTypeInteger:
            return m_integer >= other.getIntValue();
        case zvDataTypeFloat:
            return m_float >= other.getFloatValue();
        case zvDataTypeDate:
            return m_dateValue >= other.getDateValue();
        case zvDataTypeBoolean:
            fail(noOrderOfBooleans);
        default:
            return compareText(other,
                               [](const zvString& left, const zvString& right) { return left > right; });
    }
}

bool zvValue::operator!=(const zvValue& other) const { return !(*this == other); }
bool zvValue::operator>(const zvValue& other) const { return !(*this <= other); }
bool zvValue::operator<(const zvValue& other) const { return !(*this >= other); }
