#include "zvCheck.h"
#include "zvCndAndCondition.h"
#include "zvCndComparisonCondition.h"
#include "zvCndCondition.h"
#include "zvCndConditionFactory.h"
#include "zvCndConditionList.h"
#include "zvCndConditionPrecedenceEnum.h"
#include "zvCndConditionResultMap.h"
#include "zvCndConditionTypeEnum.h"
#include "zvCndContext.h"
#include "zvCndEqualsCondition.h"
#include "zvCndGreaterThanCondition.h"
#include "zvCndGreaterThanEqualsCondition.h"
#include "zvCndLessThanCondition.h"
#include "zvCndLessThanEqualsCondition.h"
#include "zvCndLogicalCondition.h"
#include "zvCndNotCondition.h"
#include "zvCndNotEqualsCondition.h"
#include "zvCndOperand.h"
#include "zvCndOrCondition.h"
#include "zvCndParsingUtils.h"
#include "zvException.h"
#include "zvICndAndCondition.h"
#include "zvICndComparisonCondition.h"
#include "zvICndCondition.h"
#include "zvICndEqualsCondition.h"
#include "zvICndGreaterThanCondition.h"
#include "zvICndGreaterThanEqualsCondition.h"
#include "zvICndLessThanCondition.h"
#include "zvICndLessThanEqualsCondition.h"
#include "zvICndListCondition.h"
#include "zvICndLogicalCondition.h"
#include "zvICndNotCondition.h"
#include "zvICndNotEqualsCondition.h"
#include "zvICndOrCondition.h"
#include "zvOperandValueTypeEnum.h"

namespace {

using Factory = zvCndConditionFactory;

// Conditions of a program's own, with no more than they need.
class OwnComparison : public zvICndComparisonCondition {
public:
    bool evaluate(const zvCndContext& context) const override {
        zvValue left, right, same;
        return getLHSOperandValue(context, left) && getRHSOperandValue(context, right) &&
               getOperandValue(getLHSOperand(), context, same) && left == right;
    }
};

class OwnLogical : public zvICndLogicalCondition {
public:
    bool evaluate(const zvCndContext&) const override { return true; }
};

class OwnList : public zvICndListCondition {
public:
    bool evaluate(const zvCndContext&) const override { return numConditions() == 1; }
};

class OwnAnd : public zvICndAndCondition {
public:
    bool evaluate(const zvCndContext&) const override { return true; }
};

zvCndOperand operand(const zvValue& value, zvOperandValueTypeEnum type) {
    zvCndOperand made;
    made.setValue(value);
    made.setValueType(type);
    return made;
}

zvCndContext context() {
    zvCndContext made;
    zvAttribute n("n", 5), text("t", "x");
    ZV_CHECK(made.addAttribute(n) && !made.addAttribute(n) && made.addAttribute(text));
    ZV_CHECK(made.getAttribute('t', n) && n.getValue() == "x");
    return made;
}

void own() {
    zvCndComparisonCondition comparison(new OwnComparison);
    comparison->setLHSOperand(operand("n", zvOperandVariable));
    comparison->setRHSOperand(operand(5, zvOperandConstant));
    const zvCndLogicalCondition logical(new OwnLogical);
    zvICndListCondition* const list = new OwnList;
    const zvCndCondition ofList(list);
    ZV_CHECK(comparison->evaluate(context()) && comparison->getConditionType() == zvCndConditionNone);
    ZV_CHECK(logical->getConditionType() == 0 && list->getConditionType() == 0);
    ZV_CHECK(list->addCondition(Factory::getCondition(comparison)) && ofList->evaluate(context()));
    const zvCndAndCondition all = Factory::createAndCondition();
    ZV_CHECK(all->addCondition(new OwnAnd) && all->addCondition(ofList) && all->evaluate(context()));
    ZV_CHECK(OwnAnd().getConditionType() == zvCndConditionAnd && zvICndOrCondition().getConditionType() == 8);
}

void handles() {
    zvCndCondition none, made(new zvICndAndCondition), copy(made);
    none = copy;
    ZV_CHECK(!none.IsNull() && !(none < copy) && !(copy < none) &&
             made->getConditionType() == zvCndConditionAnd);
    zvCndConditionList list;
    const zvCndEqualsCondition equals = Factory::createEqualsCondition(zvCndOperand(), zvCndOperand());
    const zvCndOrCondition either = Factory::createOrCondition();
    ZV_CHECK(list.addCondition(made) && list.addCondition(equals) && list.addCondition(either));
    ZV_CHECK(list.addCondition(Factory::getLogicalCondition(either)) && !list.addCondition(zvCndCondition()));
    ZV_CHECK(list.numConditions() == 4 && !list.getCondition(3).IsNull() && list.getCondition(4).IsNull());
    list.pop();
    ZV_CHECK(!list.back().IsNull() && !list.empty());
    list.clear();
    zvCndConditionResultMap results;
    ZV_CHECK(results.addConditionResult(made, either) && !results.addConditionResult(copy, either));
    ZV_CHECK(!results.getConditionResult(none).IsNull() &&
             results.getConditionResult(zvCndCondition()).IsNull());
}

void operands() {
    const zvCndOperand n = operand("n", zvOperandVariable), copy(n);
    ZV_CHECK(copy.getValue() == "n" && copy.getValueType() == zvOperandVariable);
    const zvCndComparisonCondition equals =
        Factory::getComparisonCondition(Factory::createEqualsCondition(n, operand(5, zvOperandConstant)));
    ZV_CHECK(equals->getLHSOperand().getValue() == "n" && equals->getRHSOperand().getValue() == 5);
    ZV_CHECK(equals->evaluate(context()));
}

template <class Handle>
zvCndCondition widened(const Handle& condition) {
    ZV_CHECK(!Factory::getComparisonCondition(condition).IsNull());
    return Factory::getCondition(condition);
}

void factory() {
    const zvCndOperand n = operand("n", zvOperandVariable), four = operand(4, zvOperandConstant);
    const zvCndCondition all[] = {
        widened(Factory::createEqualsCondition(n, four)),
        widened(Factory::createNotEqualsCondition(n, four)),
        widened(Factory::createLessThanCondition(n, four)),
        widened(Factory::createLessThanEqualsCondition(n, four)),
        widened(Factory::createGreaterThanCondition(n, four)),
        widened(Factory::createGreaterThanEqualsCondition(n, four)),
    };
    const zvCndEqualsCondition equals = Factory::getEqualsCondition(all[0]);
    const zvCndNotEqualsCondition notEquals = Factory::getNotEqualsCondition(all[1]);
    const zvCndLessThanCondition less = Factory::getLessThanCondition(all[2]);
    const zvCndLessThanEqualsCondition lessEquals = Factory::getLessThanEqualsCondition(all[3]);
    const zvCndGreaterThanCondition greater = Factory::getGreaterThanCondition(all[4]);
    const zvCndGreaterThanEqualsCondition greaterEquals = Factory::getGreaterThanEqualsCondition(all[5]);
    ZV_CHECK(!equals->evaluate(context()) && notEquals->evaluate(context()) && !less->evaluate(context()));
    ZV_CHECK(!lessEquals->evaluate(context()) && greater->evaluate(context()) &&
             greaterEquals->evaluate(context()));
    const zvCndNotCondition negation = Factory::createNotCondition();
    ZV_CHECK(negation->setCondition(all[0]) && !negation->getCondition().IsNull() &&
             negation->evaluate(context()));
    const zvCndLogicalCondition logical = Factory::getLogicalCondition(negation);
    ZV_CHECK(!Factory::getNotCondition(logical).IsNull());
    ZV_CHECK(!Factory::getAndCondition(Factory::getCondition(Factory::createAndCondition())).IsNull());
    ZV_CHECK(!Factory::getOrCondition(Factory::getLogicalCondition(Factory::createOrCondition())).IsNull());
    try {
        Factory::getEqualsCondition(all[1]);
        ZV_CHECK(false);
    } catch (const zvException& exception) {
        ZV_CHECK(exception.getResult().getMessage() == "Received condition is not EqualsCondition");
    }
    const Factory made, copy(made);
    use(copy);
}

// A derived class reaches the single steps.
class Steps : public zvCndParsingUtils {
public:
    static void run() {
        int position = 0;
        ZV_CHECK(findCndOperator("<=5", position) == "<=" &&
                 convertToConditionType('=') == zvCndConditionEquals);
        const zvCndConditionPrecedenceEnum highest = getOperatorPrecedence("NOT");
        ZV_CHECK(highest == 3 && convertOperandToStringFormat(getCndOperand(5, zvOperandConstant)) == "'5'");
        zvStringList operators;
        zvCndConditionList conditions;
        zvString text = "n", left;
        zvCndOperand leftOperand;
        zvCndConditionTypeEnum pending = zvCndConditionEquals;
        processComparisonOperands(text, left, zvOperandVariable, leftOperand, pending, conditions);
        text = 5;
        processComparisonOperands(text, left, zvOperandConstant, leftOperand, pending, conditions);
        conditions.addCondition(createComparisonCondition(
            zvCndConditionEquals, operand("t", zvOperandVariable), getCndOperand('x', zvOperandConstant)));
        processLogicalCndOperatorString("AND", operators, conditions);
        processStrOperatorStack(operators, conditions, false);
        createNsetLogicalCndIntoCndStack("NOT", conditions);
        setLogicalCndIntoCndStack(createLogicalCondition("NOT"), conditions);
        ZV_CHECK(conditions.numConditions() == 1);
    }
};

void strings() {
    const zvCndCondition parsed = zvCndParsingUtils::createConditionStructure("{n} = '5' AND {t} != '1'");
    ZV_CHECK(parsed->evaluate(context()));
    ZV_CHECK(zvCndParsingUtils::createConditionString(parsed) == " ( {t} != '1' ) AND ( {n} = '5' ) ");
    const zvCndCondition made = zvCndParsingUtils::createComparisonCondition(zvCndConditionEquals, "n", 5);
    ZV_CHECK(zvCndParsingUtils::createConditionString(made) == "{n} = '5'");
    Steps::run();
}

}  // namespace

int main() {
    own();
    handles();
    operands();
    factory();
    strings();
    return failures;
}
