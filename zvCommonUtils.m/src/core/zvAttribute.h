#ifndef ZV_ATTRIBUTE_H
#define ZV_ATTRIBUTE_H

#include "zvKeptString.h"
#include "zvValue.h"

/// A named typed value.
class ZV_EXPORT zvAttribute {
public:
    zvAttribute();
    zvAttribute(const zvString& name, const zvValue& value);
    zvAttribute(const zvAttribute& other);
    virtual ~zvAttribute();

    zvAttribute& operator=(const zvAttribute& other);
    /// The same as the assignment.
    void copy(const zvAttribute& other);

    zvString getName() const;
    void setName(const zvString& name);
    zvValue getValue() const;
    void setValue(const zvValue& value);
    /// Sets the value from a text, as the same function of zvValue does.
    void setValue(const zvString& text, zvDataTypeEnum type, int precision);
    /// The value by reference, owned by the attribute.
    const zvValue& value() const { return m_value; }

private:
    zvKeptString m_strName;
    zvValue m_value;
};

#endif
