#ifndef ZV_CND_CONTEXT_H
#define ZV_CND_CONTEXT_H

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
    /// Copies the attribute `name` into `attribute`; false, with `attribute` unchanged, if it is missing.
    bool getAttribute(const zvString& name, zvAttribute& attribute) const;

    /// The value of the attribute `name`, owned by the context; null if it is missing.
    const zvValue* findValue(const zvString& name) const;

private:
    zvStringToAttrMap m_attributes;
};

#endif
