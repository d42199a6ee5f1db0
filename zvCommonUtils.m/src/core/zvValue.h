#ifndef ZV_VALUE_H
#define ZV_VALUE_H

#include "zvDateTime.h"
#include "zvException.h"
#include "zvKeptString.h"

/// The configuration files name these "Integer", "Float", "String", "Date" and "Boolean".
enum zvDataTypeEnum : int {
    zvDataTypeNone = 0,
    zvDataTypeInteger = 1,
    zvDataTypeFloat = 2,
    zvDataTypeString = 3,
    zvDataTypeDate = 4,
    zvDataTypeBoolean = 5
};

/// One typed value: an integer, a float, a text, a date or a boolean, converted on reading.
///
/// There is a slot for each type, and a setter touches its own slot and the type only. Dates pass through
/// texts in the pattern "DD/MM/YYYY::hh-mm-ss".
class ZV_EXPORT zvValue {
public:
    /// Type None, which reads as an empty text and as nothing else.
    zvValue();
    explicit zvValue(bool value);
    explicit zvValue(int value);
    explicit zvValue(float value);
    explicit zvValue(const zvString& value);
    explicit zvValue(zvString&& value);
    explicit zvValue(const zvDateTime& value);
    zvValue(const zvString& text, zvDataTypeEnum type, int precision);
    zvValue(const zvValue& other);
    zvValue(zvValue&& other) noexcept;
    virtual ~zvValue();

    zvValue& operator=(const zvValue& other);

    void setBoolValue(bool value);
    void setIntValue(int value);
    /// `precision` is the number of decimals that the float was given with.
    void setFloatValue(float value, int precision);
    void setStrValue(const zvString& value);
    void setStrValue(zvString&& value);
    void setDateValue(const zvDateTime& value);
    /// Changes the type alone.
    void setDataType(zvDataTypeEnum type);
    zvDataTypeEnum getDataType() const { return m_dataType; }
    /// Reads `text` as a value of `type`. Text that is no number gives 0, a boolean is true when its text
    /// reads as an integer other than 0, and an unknown type gives a String.
    void setValue(const zvString& text, zvDataTypeEnum type, int precision);

    /// @name The value as one of the types
    /// Each throws a zvException with a message when the value's type cannot be converted.
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
    /// The text form of a value of any type; it never throws. A Boolean's, "True" or "False", is not what
    /// setValue reads.
    zvString getValue() const;
    /// The text slot itself, owned by the value: a String's text form, and of no meaning for the other types.
    const zvString& text() const { return m_strValue; }

    /// @name Comparisons
    /// The left value's type decides: the right one is converted to it by the getters, which may throw.
    /// On texts `<=` and `>=` are strict, so that equal texts are both `<` and `>`; on dates `<=` alone is,
    /// so that equal dates are `>`. Booleans throw for everything but `==` and `!=`.
    /// @{
    bool operator==(const zvValue& other) const;
    bool operator!=(const zvValue& other) const;
    bool operator<(const zvValue& other) const;
    bool operator<=(const zvValue& other) const;
    bool operator>(const zvValue& other) const;
    bool operator>=(const zvValue& other) const;
    /// @}

protected:
    /// Resets everything but the text and the date.
    void initialize();
    void copy(const zvValue& other);

private:
    template <typename Compare>
    bool compareText(const zvValue& other, Compare compare) const;

    bool m_bValue = false;
    int m_integer = -1;
    float m_float = -1.0F;
    int m_precision = 3;
    zvKeptString m_strValue;
    zvDateTime m_dateValue;
    zvDataTypeEnum m_dataType = zvDataTypeNone;
};

#endif
