#ifndef ZV_MAPPING_ACCOUNT_H
#define ZV_MAPPING_ACCOUNT_H

#include <optional>
#include <vector>

#include "zvConditionExplanation.h"
#include "zvMappingTrial.h"

/// What became of an object, and why, for those who tell people or programs. Secrets are masked.
class zvMappingAccount {
public:
    /// The trial must live longer.
    explicit zvMappingAccount(const zvMappingTrial& trial) : m_trial(trial) {}

    enum class Verdict { taken, doesNotHold, cannotBeEvaluated, notAsked };
    struct Candidate {
        const zvCfgObject* object;
        Verdict verdict;
        /// Of a rule that cannot be evaluated, why.
        zvString reason;
        /// Empty without a rule, and for one that was not or cannot be evaluated.
        std::vector<zvConditionExplanation::Part> rule;
    };
    /// Those that could be taken, in the order in which they are asked.
    std::vector<Candidate> candidates() const;

    /// The object that was taken; null if none was.
    const zvCfgObject* object() const {
        return m_trial.mapping().hasObject() ? &m_trial.mapping().object() : nullptr;
    }

    // What follows is empty without an object.

    struct Attribute {
        zvString name;
        zvString value;
        bool isDefault;
        /// The name that it came under.
        zvString from;
        /// As in "Integer"; empty for one that is not known.
        zvString type;
        /// What rules compare, if the type reads the text as something else. Of a Float the text only has
        /// more digits.
        std::optional<zvString> comparedAs;
    };
    /// The attributes in the other system.
    std::vector<Attribute> attributes() const;
    /// The names in the other system of those that have neither a value nor a default.
    std::vector<zvString> withoutValue() const;

    struct Unmapped {
        zvString name;
        /// Whether the object has an attribute of this name, which has none in the other system.
        bool isKnown;
        /// The attribute that may have been meant by one that is not known; empty for none.
        zvString meant;
    };
    /// The values that have no place in the other system.
    std::vector<Unmapped> unmapped() const;

private:
    Candidate ask(const zvCfgObject& object) const;

    const zvMappingTrial& m_trial;
};

#endif
