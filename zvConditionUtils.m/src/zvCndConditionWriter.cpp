#include "zvCndConditionWriter.h"

#include <vector>

#include "zvCndOperator.h"
#include "zvCndParsingLog.h"
#include "zvICndComparisonCondition.h"
#include "zvICndLogicalCondition.h"
#include "zvTextBuilder.h"

namespace zvCndConditionWriter {

namespace {

using zvCndParsing::logger;

// Appends the text in quotes, its backslashes and quotes behind a backslash.
void appendConstant(zvTextBuilder& builder, const zvString& text) {
    builder.append("'");
    int begin = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' || text[i] == u'\'') {
            builder.append(text.data() + begin, i - begin).append("\\");
            begin = i;
        }
    }
    builder.append(text.data() + begin, text.size() - begin).append("'");
}

void appendOperand(zvTextBuilder& builder, const zvCndOperand& operand) {
    const bool isText = operand.value().getDataType() == zvDataTypeString;
    const zvString converted = isText ? zvString() : operand.value().getValue();
    const zvString& text = isText ? operand.value().text() : converted;
    switch (operand.getValueType()) {
        case zvOperandVariable:
            builder.append("{").append(text).append("}");
            break;
        case zvOperandConstant:
            appendConstant(builder, text);
            break;
        default:
            break;
    }
}

// A condition that is being written: its children that are still to come, and what stands between two of
// them.
struct OpenCondition {
    zvCndChildren rest;
    const char* token;
};

// Writes what comes before a condition's children: all of a comparison, which has none.
void openCondition(const zvCndCondition& condition, zvTextBuilder& builder,
                   std::vector<OpenCondition>& open) {
    const zvICndLogicalCondition* const logical = zvICndLogicalCondition::from(condition);
    const zvCndChildren children = logical == nullptr ? zvCndChildren() : logical->children();
    const bool isNot = logical != nullptr && logical->getConditionType() == zvCndConditionNot;
    if (condition.IsNull() || (isNot && children.next == children.end)) {
        logger.raise("NULL condition received inside zvCndParsingUtils::createConditionString");
    }
    const zvCndOperator* const made = zvCndOperator::of(condition->getConditionType());
    if (made == nullptr) {
        logger.raise("Undefined condition received inside zvCndParsingUtils::createConditionString");
    }
    if (isNot) {
        builder.append(made->token);
    }
    if (made->isComparison()) {
        const auto* const comparison = static_cast<zvICndComparisonCondition*>(condition.operator->());
        appendOperand(builder, comparison->lhsOperand());
        builder.append(" ").append(made->token).append(" ");
        appendOperand(builder, comparison->rhsOperand());
    }
    open.push_back({children, made->token});
}

void closeChild(zvTextBuilder& builder, const OpenCondition& parent) {
    builder.append(" ) ");
    if (parent.rest.next != parent.rest.end) {
        builder.append(parent.token);
    }
}

}  // namespace

zvString textOf(const zvCndCondition& condition) {
    zvTextBuilder builder;
    std::vector<OpenCondition> open;
    openCondition(condition, builder, open);
    while (!open.empty()) {
        OpenCondition& current = open.back();
        if (current.rest.next != current.rest.end) {
            builder.append(" ( ");
            openCondition(*current.rest.next++, builder, open);
            continue;
        }
        open.pop_back();
        if (!open.empty()) {
            closeChild(builder, open.back());
        }
    }
    return builder.toString();
}

zvString textOf(const zvCndOperand& operand) {
    zvTextBuilder builder;
    appendOperand(builder, operand);
    return builder.toString();
}

}  // namespace zvCndConditionWriter
