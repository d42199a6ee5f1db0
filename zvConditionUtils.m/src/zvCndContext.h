#ifndef ZV_CND_CONTEXT_H
#define ZV_CND_CONTEXT_H

#include "zvStringToAttrMap.h"

/// The attributes, by name, for which conditions are evaluated.
class ZV_EXPORT zvCndContext {
public:
    zvCndContext();
    zvCndContext(const zvCndContext& other);
    virtual ~zvCndContext();

    zvCndContext& operator=(const zvCndContext& other);

    /// Copies the attribute. False, with nothing changed, for an empty name and for a name that is there
    /// already.
    bool addAttribute(zvAttribute& attribute);
    /// Copies the attribute into `attribute`; false, with that untouched, when there is none.
    bool getAttribute(const zvString& name, zvAttribute& attribute) const;

    /// The attribute's value itself, owned by the context; null when there is none.
    const zvValue* findValue(const zvString& name) const;

private:
    zvStringToAttrMap m_attributes;
};

#endif
