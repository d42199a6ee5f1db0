#include "zvRuleForms.h"

#include <algorithm>
#include <string>
#include <tuple>

#include "zvCndConditionFactory.h"
#include "zvCndParsingUtils.h"
#include "zvConditionTree.h"
#include "zvDataTypeWords.h"
#include "zvICndComparisonCondition.h"

using zvConditionTree::childrenOf;
using zvConditionTree::isComparison;

namespace {

const char* nameOf(zvCndConditionTypeEnum type) {
    return type == zvCndConditionAnd ? "AND" : type == zvCndConditionOr ? "OR" : "NOT";
}

zvDataTypeEnum typeNamed(const zvString& word) {
    return zvDataTypeWords::typeOf(std::u16string(word.data(), word.data() + word.size()));
}

bool isNot(const zvCndCondition& condition) { return condition->getConditionType() == zvCndConditionNot; }

// Two negations are none.
zvCndCondition withoutDoubleNot(zvCndCondition condition) {
    while (isNot(condition) && isNot(childrenOf(condition).front())) {
        condition = childrenOf(childrenOf(condition).front()).front();
    }
    return condition;
}

bool isOrdering(zvCndConditionTypeEnum type) {
    return type != zvCndConditionEquals && type != zvCndConditionNotEquals;
}

// Whether a value of the right type has no form of the left one, so that comparing them fails.
bool isWithoutConversion(zvDataTypeEnum left, zvDataTypeEnum right) {
    const bool isNumber = right == zvDataTypeInteger || right == zvDataTypeFloat;
    switch (left) {
        case zvDataTypeInteger:
        case zvDataTypeFloat:
            return right == zvDataTypeDate || right == zvDataTypeBoolean;
        case zvDataTypeDate:
            return isNumber || right == zvDataTypeBoolean;
        case zvDataTypeBoolean:
            return isNumber || right == zvDataTypeDate;
        default:
            return false;
    }
}

}  // namespace

// A part whose children are being visited. Children of its own type are taken as its own.
struct zvRuleForms::Visit {
    explicit Visit(const zvCndCondition& part) : condition(part), type(part->getConditionType()) {
        open(part);
    }

    // From the last, which is evaluated first, to the first as it is written, so that that one is taken next.
    void open(const zvCndCondition& part) {
        const std::vector<zvCndCondition> inside = childrenOf(part);
        pending.insert(pending.end(), inside.begin(), inside.end());
    }

    zvCndCondition condition;
    zvCndConditionTypeEnum type;
    std::vector<zvCndCondition> pending;
    std::vector<int> children;
};

bool zvRuleForms::Form::operator<(const Form& other) const {
    return std::tie(type, text, children) < std::tie(other.type, other.text, other.children);
}

zvRuleForms::zvRuleForms(const zvComparedPart& before, const zvComparedPart& after)
    : m_before(before), m_after(after) {}

// A rule names attributes as either system does.
void zvRuleForms::addTypes(const zvComparedPart& object) {
    for (const zvComparedPart& part : object.parts) {
        const zvString* const word = part.find("DataType");
        if (word == nullptr) {
            continue;
        }
        const zvDataTypeEnum known = typeNamed(*word);
        const zvDataTypeEnum type = known == zvDataTypeNone ? zvDataTypeString : known;
        for (const char* const name : {"LocalName", "RemoteName"}) {
            const auto [entry, isNew] = m_types.try_emplace(*part.find(name), type);
            if (!isNew && entry->second != type) {
                entry->second = zvDataTypeNone;
            }
        }
    }
}

// With a stack of its own: a rule may be nested more deeply than the process's stack allows.
int zvRuleForms::add(const zvCndCondition& rule) {
    std::vector<Visit> open;
    open.emplace_back(withoutDoubleNot(rule));
    while (true) {
        Visit& visit = open.back();
        if (!visit.pending.empty()) {
            const zvCndCondition child = withoutDoubleNot(visit.pending.back());
            visit.pending.pop_back();
            if (child->getConditionType() == visit.type && !isNot(child)) {
                visit.open(child);
            } else {
                open.emplace_back(child);
            }
            continue;
        }
        const int number = finish(visit);
        open.pop_back();
        if (open.empty()) {
            return number;
        }
        open.back().children.push_back(number);
    }
}

int zvRuleForms::finish(Visit& visit) {
    if (isComparison(visit.type)) {
        return numberOf({visit.type, zvCndParsingUtils::createConditionString(visit.condition), {}},
                        canFail(visit.condition));
    }
    std::vector<int>& children = visit.children;
    const bool decides = std::any_of(children.begin(), children.end(), [this](int child) {
        return m_canFail[static_cast<std::size_t>(child)];
    });
    if (!decides) {
        // By their first appearance, which is how the older rule has them.
        std::sort(children.begin(), children.end());
        children.erase(std::unique(children.begin(), children.end()), children.end());
    }
    if (visit.type != zvCndConditionNot && children.size() == 1) {
        return children.front();
    }
    return numberOf({visit.type, zvString(), children}, decides);
}

int zvRuleForms::numberOf(Form form, bool canFail) {
    const auto [entry, isNew] = m_numbers.try_emplace(std::move(form), static_cast<int>(m_forms.size()));
    if (isNew) {
        m_forms.push_back(&entry->first);
        m_canFail.push_back(canFail);
    }
    return entry->second;
}

zvDataTypeEnum zvRuleForms::typeOf(const zvCndOperand& operand) {
    if (operand.getValueType() != zvOperandVariable) {
        return zvDataTypeString;
    }
    if (m_types.empty()) {
        addTypes(m_before);
        addTypes(m_after);
    }
    const auto found = m_types.find(operand.value().getStrValue());
    return found == m_types.end() ? zvDataTypeString : found->second;
}

bool zvRuleForms::canFail(const zvCndCondition& comparison) {
    const zvCndComparisonCondition operands = zvCndConditionFactory::getComparisonCondition(comparison);
    const bool isOrdered = isOrdering(comparison->getConditionType());
    if (!isOrdered && operands->getRHSOperand().getValueType() != zvOperandVariable) {
        return false;  // a constant is a text, which has a form of every type
    }
    const zvDataTypeEnum left = typeOf(operands->getLHSOperand());
    const zvDataTypeEnum right = typeOf(operands->getRHSOperand());
    return left == zvDataTypeNone || right == zvDataTypeNone || isWithoutConversion(left, right) ||
           (left == zvDataTypeBoolean && isOrdered);
}

std::vector<zvTreeLine> zvRuleForms::lines(int form) const {
    std::vector<zvTreeLine> result;
    std::vector<std::pair<int, std::size_t>> open{{form, 0}};
    while (!open.empty()) {
        const auto [number, depth] = open.back();
        open.pop_back();
        const Form& part = *m_forms[static_cast<std::size_t>(number)];
        result.push_back({depth, isComparison(part.type) ? part.text : zvString(nameOf(part.type))});
        for (auto child = part.children.rbegin(); child != part.children.rend(); ++child) {
            open.emplace_back(*child, depth + 1);
        }
    }
    return result;
}
