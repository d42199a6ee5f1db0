#ifndef ZV_CND_CONTEXT_H
#define ZV_CND_CONTEXT_H

#include <cstdint>

#include "zvNamePositions.h"
#include "zvStringToAttrMap.h"

/// The attributes by name against which conditions are evaluated.
class ZV_EXPORT zvCndContext {
public:
    zvCndContext();
    zvCndContext(const zvCndContext& other);
    virtual ~zvCndContext();

    zvCndContext& operator=(const zvCndContext& other);

    /// Adds a copy of the attribute. False, with nothing changed, for an empty and for a duplicate name.
    bool addAttribute(zvAttribute& attribute);
    /// Sets the attribute `name`, which is added if it is missing, to the value of `type` that `text` stands
    /// for. One context that is set for every event allocates memory for new names and longer texts only.
    /// False, with nothing changed, for an empty and for a borrowed name.
    bool setAttribute(const zvString& name, const zvString& text, zvDataTypeEnum type);
    /// Adds an attribute without a copy: name and value have to outlive the context and its copies,
    /// unchanged. False, with nothing changed, for an empty and for a duplicate name.
    bool borrowAttribute(const zvString& name, const zvValue& value);
    /// Adds attributes without copies: under each of `names` the value at its position in `values`, unless
    /// that is null. Names, values and their array have to outlive the context and its copies, unchanged.
    /// Precondition: nothing was added before, and there is an element for every position.
    void borrowAttributes(const zvNamePositions& names, const zvValue* const* values);
    /// Makes room for `count` attributes beside those.
    void reserve(int count);
    /// Copies the attribute `name` into `attribute`; false, with `attribute` unchanged, if it is missing.
    bool getAttribute(const zvString& name, zvAttribute& attribute) const;

    /// The value of the attribute `name`, owned by the context unless it is borrowed; null if it is missing.
    const zvValue* findValue(const zvString& name) const;

private:
    friend class zvICndComparisonCondition;

    const zvValue* findValue(const zvString& name, std::uint32_t hash) const;

    zvStringToAttrMap m_attributes;
};

#endif
