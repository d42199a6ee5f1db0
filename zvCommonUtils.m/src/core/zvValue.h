#ifndef ZV_VALUE_H
#define ZV_VALUE_H

#include <cstdint>

#include "zvDateTime.h"
#include "zvException.h"
#include "zvKeptString.h"

/// Data types; "Integer", "Float", "String", "Date" and "Boolean" in configuration files.
enum zvDataTypeEnum : int {
    zvDataTypeNone = 0,
    zvDataTypeInteger = 1,
    zvDataTypeFloat = 2,
    zvDataTypeString = 3,
    zvDataTypeDate = 4,
    zvDataTypeBoolean = 5
};

/// A typed value: an integer, a float, a string, a date or a boolean, converted by the getters.
///
/// Each type has a slot of its own; a setter changes only its slot and the type. Dates convert to and from
/// strings in the pattern "DD/MM/YYYY::hh-mm-ss".
class ZV_EXPORT zvValue {
public:
    /// Type None, which converts to an empty string only.
    zvValue();
    zvValue(bool value);
    zvValue(int value);
    zvValue(float value);
    zvValue(const zvString& value);
    zvValue(zvString&& value);
    /// @name Strings from text
    /// Null gives an empty string.
    /// @{
    zvValue(const char* value);
    zvValue(const wchar16* value);
    zvValue(const char16_t* value);
    /// @}
    /// Any other pointer is refused.
    template <typename Other, std::enable_if_t<zvIsOtherPointer<Other>, bool> = true>
    zvValue(Other) = delete;
    zvValue(const zvDateTime& value);
    zvValue(const zvString& text, zvDataTypeEnum type, int precision);
    zvValue(const zvValue& other);
    zvValue(zvValue&& other) noexcept;
    virtual ~zvValue();

    zvValue& operator=(const zvValue& other);

    void setBoolValue(bool value);
    void setIntValue(int value);
    /// `precision` is the number of decimals of the float's original text.
    void setFloatValue(float value, int precision);
    void setStrValue(const zvString& value);
    void setStrValue(zvString&& value);
    void setDateValue(const zvDateTime& value);
    /// Changes the type only, no slot.
    void setDataType(zvDataTypeEnum type);
    zvDataTypeEnum getDataType() const { return m_dataType; }
    /// Parses `text` as a value of `type`. An invalid number gives 0; a boolean is true if its text parses as
    /// an integer other than 0; an unknown type gives a String.
    void setValue(const zvString& text, zvDataTypeEnum type, int precision);

    /// @name The value as one of the types
    /// Each throws a zvException with a message for a type that cannot be converted.
    /// @{

    /// From a Boolean or a String.
    bool getBoolValue() const;
    /// From an Integer, a String or a Float (towards 0); INT_MIN for a float beyond 32 bits and for NaN.
    int getIntValue() const;
    /// From a Float, a String or an Integer.
    float getFloatValue() const;
    /// From a Date or a String.
    zvDateTime getDateValue() const;
    /// @}

    /// The same as getValue().
    zvString getStrValue() const;
    /// The text form of a value of any type; never throws. A Boolean's, "True" or "False", does not
    /// round-trip through setValue().
    zvString getValue() const;
    /// The string slot by reference, owned by the value; meaningful for the type String only.
    const zvString& text() const { return m_strValue; }

    /// @name Comparisons
    /// By the type of the left operand, to which the right operand is converted by the getters, which may
    /// throw. On strings `<=` and `>=` are strict, so that equal strings are both `<` and `>`; on dates only
    /// `<=` is strict, so that equal dates are `>`. Booleans throw for all but `==` and `!=`.
    /// @{
    bool operator==(const zvValue& other) const;
    bool operator!=(const zvValue& other) const;
    bool operator<(const zvValue& other) const;
    bool operator<=(const zvValue& other) const;
    bool operator>(const zvValue& other) const;
    bool operator>=(const zvValue& other) const;
    /// @}

protected:
    /// Resets everything but the string slot and the date slot.
    void initialize();
    void copy(const zvValue& other);

private:
    friend class zvCndOperand;
    friend class zvICndComparisonCondition;

    template <typename Compare>
    bool compareText(const zvValue& other, Compare compare) const;

    // What a String of a condition remembers of its text, which is read for every evaluation, in slots that a
    // String does not use. Every setter forgets it.
    enum Remembered : unsigned char {
        nothing = 0,
        integerOfText = 1,
        floatOfText = 2,
        floatOfTextWithPoint = 4,  // in locales that have a point
        hashOfText = 8,            // in the integer's slot: of a variable's name
        textOfConstant = 16        // it is not empty
    };
    void rememberConstant();
    void rememberName();
    void forget();
    bool remembers(unsigned what) const { return (m_remembered & what) != 0; }
    std::uint32_t textHash() const;
    bool remembersFloat() const;

    bool m_bValue = false;
    unsigned char m_remembered = nothing;
    int m_integer = -1;
    float m_float = -1.0F;
    int m_precision = 3;
    zvKeptString m_strValue;
    zvDateTime m_dateValue;
    zvDataTypeEnum m_dataType = zvDataTypeNone;
};

#endif
