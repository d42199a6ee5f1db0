#ifndef ZV_OBJECT_MAPPING_H
#define ZV_OBJECT_MAPPING_H

#include <map>
#include <optional>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCndContext.h"

/// Carries an object's attributes from one system to the other, as the configuration says.
class zvObjectMapping {
public:
    enum class Direction { localToRemote, remoteToLocal };

    /// The texts are those of the configuration and of the object.
    struct Attribute {
        // Made where it stays.
        Attribute(const zvString& source, const zvString& target, const zvString& given,
                  zvDataTypeEnum dataType, bool isOfConfiguration)
            : from(source), to(target), value(given), type(dataType), isDefault(isOfConfiguration) {}

        const zvString& from;
        const zvString& to;
        const zvString& value;
        zvDataTypeEnum type;
        bool isDefault;
    };

    /// Strings all of them: what a rule compares as a text is borrowed.
    using Values = std::map<zvString, zvValue>;

    /// `values`, which have to outlive this object, are the object's attributes under their names in the
    /// system that it comes from.
    zvObjectMapping(Direction direction, const Values& values);
    zvObjectMapping(const zvObjectMapping&) = delete;
    zvObjectMapping& operator=(const zvObjectMapping&) = delete;

    /// Maps by the first of `candidates`, which may be null, that has no mapping rule or one that holds.
    /// False without one. Throws the zvException of a rule that cannot be evaluated.
    bool map(const zvCfgObjectList* candidates);

    bool hasObject() const { return m_pObject != nullptr; }
    /// What map() chose, owned by the configuration manager.
    const zvCfgObject& object() const { return *m_pObject; }
    /// The candidates whose rules do not hold, or cannot be evaluated.
    const std::vector<const zvCfgObject*>& passedOver() const { return m_passedOver; }
    /// The text that the object has under this name; null if it has none.
    const zvString* findText(const zvString& name) const;
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
    // What an object's attributes are given, and what its rule compares: the same for most objects of a type.
    struct View {
        const zvCfgObject* object = nullptr;
        std::vector<const zvValue*> given;     // for each attribute; null without a value
        std::vector<zvValue> converted;        // those of a type other than String
        std::vector<const zvValue*> compared;  // for each attribute, if their names have positions
        bool isWhole = false;                  // every value is known to be given to some attribute
        std::optional<zvCndContext> context;   // once it was asked for; borrows names and values
    };

    const zvValue* findValue(const zvString& name) const;
    bool applies(const zvCfgObject& object) const;
    View& viewOf(const zvCfgObject& object) const;
    void findGiven(View& view) const;
    void fillContext(View& view) const;
    std::size_t borrowByPosition(View& view, const zvNamePositions& positions) const;
    std::size_t borrowByName(View& view) const;
    static const zvValue& valueToCompare(View& view, std::size_t i);
    void carry(const zvCfgObject& object);
    void noteUnmapped();

    Direction m_direction;
    const Values& m_values;
    const zvCfgObject* m_pObject = nullptr;
    mutable View m_view;  // of the object that was asked for last
    std::vector<const zvCfgObject*> m_passedOver;
    std::vector<Attribute> m_attributes;
    std::vector<zvString> m_unmapped;
};

#endif
