#ifndef ZV_RULE_FORMS_H
#define ZV_RULE_FORMS_H

#include <map>
#include <utility>
#include <vector>

#include "zvAlignedLine.h"
#include "zvCndCondition.h"
#include "zvCndOperand.h"
#include "zvComparedPart.h"

/// What rules mean, whatever their blanks and brackets: rules of the same meaning have the same form. The
/// order of the parts of AND and OR belongs to it only where one of them can fail, since what fails first
/// decides then.
class zvRuleForms {
public:
    /// Takes the types of the attributes of both objects whose rules are compared; they must outlive this.
    zvRuleForms(const zvComparedPart& before, const zvComparedPart& after);

    /// The number of the rule's form; equal parts of rules have equal numbers. The rule is not null.
    int add(const zvCndCondition& rule);
    /// A line for each part, children below their parents, as they are written.
    std::vector<zvTreeLine> lines(int form) const;

private:
    struct Form {
        zvCndConditionTypeEnum type;
        zvString text;  // of a comparison
        std::vector<int> children;

        bool operator<(const Form& other) const;
    };
    struct Visit;

    void addTypes(const zvComparedPart& object);
    zvDataTypeEnum typeOf(const zvCndOperand& operand);
    bool canFail(const zvCndCondition& comparison);
    int finish(Visit& visit);
    int numberOf(Form form, bool canFail);

    const zvComparedPart& m_before;
    const zvComparedPart& m_after;
    // By name, once they are asked for; none for a name that has several.
    std::map<zvString, zvDataTypeEnum> m_types;
    std::map<Form, int> m_numbers;
    std::vector<const Form*> m_forms;
    std::vector<bool> m_canFail;
};

#endif
