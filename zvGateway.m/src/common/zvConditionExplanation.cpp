#include "zvConditionExplanation.h"

#include <utility>

#include "zvCndConditionFactory.h"
#include "zvCndParsingUtils.h"
#include "zvConditionTree.h"
#include "zvConsole.h"
#include "zvICndComparisonCondition.h"
#include "zvSecrets.h"

using zvConditionTree::childrenOf;
using zvConditionTree::isComparison;

namespace {

const char* nameOf(zvCndConditionTypeEnum type) {
    return type == zvCndConditionAnd ? "AND" : type == zvCndConditionOr ? "OR" : "NOT";
}

// The operand's value as the comparison sees it; none of a missing attribute.
std::optional<zvString> valueOf(const zvCndOperand& operand, const zvCndContext& context) {
    if (operand.getValueType() == zvOperandConstant) {
        return operand.getValue().getValue();
    }
    zvAttribute attribute;
    return context.getAttribute(operand.getValue().getStrValue(), attribute)
               ? std::optional(attribute.getValue().getValue())
               : std::nullopt;
}

std::string shown(const std::optional<zvString>& value) {
    return value.has_value() ? "'" + zvConsole::printable(*value) + "'" : "no such attribute";
}

// The secret key that the comparison has on one of its sides; null for none.
const char* secretKeyIn(const zvCndComparisonCondition& comparison) {
    const char* const left = zvSecrets::keyIn(comparison->getLHSOperand().getValue().getValue());
    return left != nullptr ? left : zvSecrets::keyIn(comparison->getRHSOperand().getValue().getValue());
}

// A part whose children are being visited.
struct Visit {
    std::size_t node;
    zvCndConditionTypeEnum type;
    std::vector<zvCndCondition> children;
    std::size_t next;
    bool leftOut;
    // The outcome, once a child has settled it.
    std::optional<bool> settled;

    // Of a part all of whose children have been visited: an AND of nothing is false.
    bool outcome() const { return settled.value_or(type == zvCndConditionAnd && !children.empty()); }

    void take(bool childOutcome) {
        if (type == zvCndConditionNot) {
            settled = !childOutcome;
        } else if (childOutcome == (type == zvCndConditionOr)) {
            settled = childOutcome;
        }
    }
};

}  // namespace

zvConditionExplanation::zvConditionExplanation(const zvCndCondition& condition, const zvCndContext& context)
    : m_context(context) {
    evaluate(condition);
}

bool zvConditionExplanation::outcome() const { return *m_nodes.front().outcome; }

// With a stack of its own: a condition may be nested more deeply than the process's stack allows.
void zvConditionExplanation::evaluate(const zvCndCondition& root) {
    std::vector<Visit> open;
    const auto enter = [&](const zvCndCondition& condition, bool leftOut) {
        const zvCndConditionTypeEnum type = condition->getConditionType();
        m_nodes.push_back({condition, open.size(), std::nullopt});
        open.push_back({m_nodes.size() - 1, type, childrenOf(condition), 0, leftOut, std::nullopt});
        if (isComparison(type) && !leftOut) {
            open.back().settled = condition->evaluate(m_context);
        }
    };
    enter(root, false);
    while (!open.empty()) {
        Visit& visit = open.back();
        if (visit.next < visit.children.size()) {
            const zvCndCondition child = visit.children[visit.next++];
            enter(child, visit.leftOut || visit.settled.has_value());
            continue;
        }
        const Visit done = std::move(visit);
        open.pop_back();
        if (!done.leftOut) {
            m_nodes[done.node].outcome = done.outcome();
            if (!open.empty()) {
                open.back().take(done.outcome());
            }
        }
    }
}

std::vector<zvConditionExplanation::Part> zvConditionExplanation::parts() const {
    std::vector<Part> parts;
    parts.reserve(m_nodes.size());
    for (const Node& node : m_nodes) {
        parts.push_back(describe(node));
    }
    return parts;
}

std::vector<std::string> zvConditionExplanation::lines() const {
    std::vector<std::string> lines;
    lines.reserve(m_nodes.size());
    for (const Node& node : m_nodes) {
        lines.push_back(describe(node).line());
    }
    return lines;
}

zvString zvConditionExplanation::textOf(const zvCndCondition& part) {
    const zvCndConditionTypeEnum type = part->getConditionType();
    return isComparison(type) ? zvCndParsingUtils::createConditionString(part) : zvString(nameOf(type));
}

zvConditionExplanation::Part zvConditionExplanation::describe(const Node& node) const {
    Part part{node.depth, textOf(node.condition), node.outcome, {}};
    if (!isComparison(node.condition->getConditionType())) {
        return part;
    }
    const zvCndComparisonCondition comparison = zvCndConditionFactory::getComparisonCondition(node.condition);
    if (const char* const secret = secretKeyIn(comparison)) {
        part.text = "{" + zvString(secret) + "} compared with " + zvSecrets::mask;
    } else if (node.outcome.has_value()) {
        part.values = {valueOf(comparison->getLHSOperand(), m_context),
                       valueOf(comparison->getRHSOperand(), m_context)};
    }
    return part;
}

std::string zvConditionExplanation::Part::line() const {
    const std::string compared =
        values.empty() ? "" : "  [" + shown(values.front()) + ", " + shown(values.back()) + "]";
    return zvConditionTree::indentOf(depth) + zvConsole::printable(text) + compared + ": " +
           (!outcome.has_value() ? "left out"
            : *outcome           ? "true"
                                 : "false");
}
