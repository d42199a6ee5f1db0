#ifndef ZV_OBJECT_MAPPING_H
#define ZV_OBJECT_MAPPING_H

#include <map>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCndContext.h"

/// Carries an object's attributes from one system to the other, as the configuration says.
class zvObjectMapping {
public:
    enum class Direction { localToRemote, remoteToLocal };

    struct Attribute {
        zvString from;
        zvString to;
        zvString value;
        zvDataTypeEnum type;
        bool isDefault;
    };

    using Values = std::map<zvString, zvString>;

    /// `values` are the object's attributes under their names in the system that it comes from.
    zvObjectMapping(Direction direction, Values values);

    /// Maps by the first of `candidates`, which may be null, that has no mapping rule or one that holds.
    /// False without one. Throws the zvException of a rule that cannot be evaluated.
    bool map(const zvCfgObjectList* candidates);

    bool hasObject() const { return m_pObject != nullptr; }
    /// What map() chose, owned by the configuration manager.
    const zvCfgObject& object() const { return *m_pObject; }
    /// The candidates whose rules do not hold, or cannot be evaluated.
    const std::vector<const zvCfgObject*>& passedOver() const { return m_passedOver; }
    /// The value that the object has under this name; null if it has none.
    const zvString* findValue(const zvString& name) const;
    /// What a mapping rule of this object compares; valid until the next call.
    const zvCndContext& contextFor(const zvCfgObject& object) const;

    /// The attribute's name in the system that the object comes from, and in the other one; empty if it has
    /// none there.
    const zvString& sourceName(const zvCfgAttribute& attribute) const;
    const zvString& targetName(const zvCfgAttribute& attribute) const;

    /// In the order of the configuration; attributes without a value and without a default are not among
    /// them.
    const std::vector<Attribute>& attributes() const { return m_attributes; }
    /// The names of the values that the configuration does not carry across.
    const std::vector<zvString>& unmapped() const { return m_unmapped; }

private:
    bool applies(const zvCfgObject& object) const;
    void fill(zvCndContext& context, const zvCfgObject& object) const;
    void carry(const zvCfgObject& object);

    Direction m_direction;
    Values m_values;
    const zvCfgObject* m_pObject = nullptr;
    // The object that contextFor() was asked for last, and its answer: that of most objects of the same type.
    mutable const zvCfgObject* m_pCompared = nullptr;
    mutable zvCndContext m_context;
    std::vector<const zvCfgObject*> m_passedOver;
    std::vector<Attribute> m_attributes;
    std::vector<zvString> m_unmapped;
};

#endif
