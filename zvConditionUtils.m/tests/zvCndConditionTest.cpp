#include "zvCndCondition.h"

#include <tuple>
#include <utility>
#include <vector>

#include "zvCndConditionResultMap.h"
#include "zvConditionTestSupport.h"
#include "zvRecordingLogger.h"

namespace {

using zvCndConditionFactoryTest = zvLoggedTest;

using Factory = zvCndConditionFactory;

zvCndOperand operand(const zvValue& value, int valueType = zvOperandConstant) {
    zvCndOperand made;
    made.setValue(value);
    made.setValueType(static_cast<zvOperandValueTypeEnum>(valueType));
    return made;
}

zvCndOperand text(const char* value) { return operand(zvValue(zvString(value))); }
zvCndOperand variable(const char* name) { return operand(zvValue(zvString(name)), zvOperandVariable); }

std::vector<zvCndCondition> allComparisons(const zvCndOperand& lhs, const zvCndOperand& rhs) {
    return {Factory::getCondition(Factory::createEqualsCondition(lhs, rhs)),
            Factory::getCondition(Factory::createNotEqualsCondition(lhs, rhs)),
            Factory::getCondition(Factory::createLessThanCondition(lhs, rhs)),
            Factory::getCondition(Factory::createLessThanEqualsCondition(lhs, rhs)),
            Factory::getCondition(Factory::createGreaterThanCondition(lhs, rhs)),
            Factory::getCondition(Factory::createGreaterThanEqualsCondition(lhs, rhs))};
}

zvCndAndCondition andOf(const std::vector<zvCndCondition>& children) {
    zvCndAndCondition made = Factory::createAndCondition();
    for (const zvCndCondition& child : children) {
        EXPECT_TRUE(made->addCondition(child));
    }
    return made;
}

zvCndCondition notOf(const zvCndCondition& child) {
    const zvCndNotCondition made = Factory::createNotCondition();
    EXPECT_TRUE(made->setCondition(child));
    return Factory::getCondition(made);
}

TEST(zvCndHandleTest, CountsItsOwners) {
    {
        zvCndCondition first = fixed(true);
        EXPECT_EQ(1, owners(first));
        const zvCndCondition second(first);
        EXPECT_EQ(2, owners(first));
        first = fixed(false);
        EXPECT_EQ(1, owners(second));
        EXPECT_EQ(2, FixedCondition::living);
        zvCndCondition& same = first;
        first = same;
        EXPECT_EQ(1, owners(first));
        const zvCndCondition moved(std::move(first));
        EXPECT_EQ(1, owners(moved));
        first = moved;
        EXPECT_EQ(2, owners(moved));
        first = zvCndCondition();
        EXPECT_TRUE(first.IsNull());
        EXPECT_EQ(1, owners(moved));
    }
    EXPECT_EQ(0, FixedCondition::living);
}

TEST(zvCndConditionListTest, RefusesNullHandlesAndBadIndices) {
    zvCndConditionList list;
    EXPECT_FALSE(list.addCondition(zvCndCondition()));
    EXPECT_FALSE(list.addCondition(zvCndNotCondition()));
    EXPECT_TRUE(list.back().IsNull());
    list.pop();
    const zvCndOrCondition typed = Factory::createOrCondition();
    EXPECT_TRUE(list.addCondition(typed));
    EXPECT_TRUE(list.addCondition(fixed(true)));
    EXPECT_EQ(2, list.numConditions());
    EXPECT_EQ(2, owners(typed));
    EXPECT_EQ(zvCndConditionNone, list.back()->getConditionType());
    EXPECT_TRUE(list.getCondition(-1).IsNull());
    EXPECT_TRUE(list.getCondition(2).IsNull());
    list.pop();
    EXPECT_EQ(0, FixedCondition::living);
    EXPECT_EQ(zvCndConditionOr, list.getCondition(0)->getConditionType());
    list.clear();
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(1, owners(typed));
}

TEST(zvCndConditionResultMapTest, KeepsTheFirstResultOfAnIdentity) {
    zvCndConditionResultMap results;
    const zvCndCondition key = fixed(true);
    const zvCndOrCondition result = Factory::createOrCondition();
    EXPECT_FALSE(results.addConditionResult(zvCndCondition(), result));
    EXPECT_FALSE(results.addConditionResult(key, zvCndOrCondition()));
    EXPECT_TRUE(results.addConditionResult(key, result));
    EXPECT_FALSE(results.addConditionResult(zvCndCondition(key), Factory::createOrCondition()));
    EXPECT_EQ(result.operator->(), results.getConditionResult(key).operator->());
    EXPECT_TRUE(results.getConditionResult(fixed(true)).IsNull());
    EXPECT_TRUE(results.getConditionResult(zvCndCondition()).IsNull());
}

TEST_F(zvCndConditionFactoryTest, WidensAndNarrowsOnTheSameCondition) {
    const zvCndAndCondition made = Factory::createAndCondition();
    EXPECT_EQ(1, owners(made));
    const zvCndCondition general = Factory::getCondition(Factory::getLogicalCondition(made));
    Factory::getAndCondition(Factory::getLogicalCondition(general))->addCondition(fixed(true));
    EXPECT_EQ(1, made->numConditions());
    EXPECT_EQ(2, owners(made));
    const zvCndLessThanCondition less = Factory::createLessThanCondition(text("1"), text("2"));
    const zvCndComparisonCondition comparison = Factory::getComparisonCondition(Factory::getCondition(less));
    EXPECT_EQ(zvString("2"), comparison->getRHSOperand().getValue().getValue());
    EXPECT_EQ(less.operator->(), Factory::getLessThanCondition(comparison).operator->());
}

template <class Narrow>
std::string refusals(Narrow narrowed) {
    std::vector<zvCndCondition> conditions = allComparisons(text("1"), text("2"));
    conditions.push_back(Factory::getCondition(Factory::createAndCondition()));
    conditions.push_back(Factory::getCondition(Factory::createOrCondition()));
    conditions.push_back(Factory::getCondition(Factory::createNotCondition()));
    conditions.push_back(fixed(true));
    conditions.emplace_back();
    std::string accepted;
    std::string message;
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        try {
            narrowed(conditions[i]);
            accepted += std::to_string(i + 1);
        } catch (const zvException& refusal) {
            message = narrow(refusal.getResult().getMessage());
        }
    }
    return accepted + ": " + message;
}

TEST_F(zvCndConditionFactoryTest, NarrowingChecksTheType) {
#define ZV_NARROWED(Type) refusals([](const zvCndCondition& general) { Factory::get##Type(general); })
    EXPECT_EQ("123456: Received condition is not ComparisonCondition", ZV_NARROWED(ComparisonCondition));
    EXPECT_EQ("789: Received condition is not LogicalCondition", ZV_NARROWED(LogicalCondition));
    EXPECT_EQ("1: Received condition is not EqualsCondition", ZV_NARROWED(EqualsCondition));
    EXPECT_EQ("2: Received condition is not NotEqualsCondition", ZV_NARROWED(NotEqualsCondition));
    EXPECT_EQ("3: Received condition is not LessThanCondition", ZV_NARROWED(LessThanCondition));
    EXPECT_EQ("4: Received condition is not LessThanEqualsCondition", ZV_NARROWED(LessThanEqualsCondition));
    EXPECT_EQ("5: Received condition is not GreaterThanCondition", ZV_NARROWED(GreaterThanCondition));
    EXPECT_EQ("6: Received condition is not GreaterThanEqualsCondition",
              ZV_NARROWED(GreaterThanEqualsCondition));
    EXPECT_EQ("7: Received condition is not AndCondition", ZV_NARROWED(AndCondition));
    EXPECT_EQ("8: Received condition is not OrCondition", ZV_NARROWED(OrCondition));
    zvRecordingLogger::reset();
    EXPECT_EQ("9: Received condition is not NotCondition", ZV_NARROWED(NotCondition));
#undef ZV_NARROWED
    ASSERT_EQ(10u, zvRecordingLogger::events().size());
    EXPECT_EQ("error", zvRecordingLogger::events()[0].level);
    EXPECT_EQ("zvConditionUtils.m/src/zvCndConditionFactory", zvRecordingLogger::events()[0].file);
}

TEST(zvCndContextTest, RefusesEmptyAndTakenNames) {
    zvCndContext context;
    zvAttribute attribute("", zvValue(1));
    EXPECT_FALSE(context.addAttribute(attribute));
    add(context, "a", zvValue(1));
    attribute.setName("a");
    EXPECT_FALSE(context.addAttribute(attribute));
    EXPECT_FALSE(context.getAttribute("", attribute));
    EXPECT_FALSE(context.getAttribute("b", attribute));
    attribute.setValue(zvValue(2));
    EXPECT_TRUE(context.getAttribute("a", attribute));
    EXPECT_EQ(1, attribute.getValue().getIntValue());
}

TEST(zvCndContextTest, SetsAttributesAgainAndBorrowsOthers) {
    const zvString borrowed("borrowed");
    const zvValue value(7);
    zvAttribute found;
    zvCndContext context;
    context.reserve(-1);
    EXPECT_FALSE(context.setAttribute("", "1", zvDataTypeInteger) || context.borrowAttribute("", value));
    EXPECT_TRUE(context.borrowAttribute(borrowed, value));
    EXPECT_FALSE(context.borrowAttribute(borrowed, value));
    EXPECT_FALSE(context.setAttribute("borrowed", "1", zvDataTypeInteger));
    found.setName("borrowed");
    EXPECT_FALSE(context.addAttribute(found));
    EXPECT_TRUE(context.getAttribute("borrowed", found));
    EXPECT_EQ(narrow(found.getName()) + narrow(found.getValue().getValue()), "borrowed7");
    const zvCndCondition rule = parse("{set} = '8' AND {borrowed} = '7'");
    for (const auto& [text, type, outcome] :
         {std::tuple("8", zvDataTypeString, true), std::tuple("8.9", zvDataTypeInteger, true),
          std::tuple("8.9", zvDataTypeFloat, false),
          std::tuple("a text that is longer", zvDataTypeString, false),
          std::tuple("8", zvDataTypeString, true)}) {
        EXPECT_TRUE(context.setAttribute("set", text, type));
        EXPECT_EQ(rule->evaluate(context), outcome) << text;
        EXPECT_EQ(rule->evaluate(zvCndContext(context)), outcome) << text << ", in a copy";
    }
    EXPECT_FALSE(context.borrowAttribute("set", value));
}

TEST(zvCndContextTest, BorrowsValuesByPosition) {
    const auto name = [](const char* text) { return std::make_shared<const zvString>(text); };
    zvNamePositions names;
    EXPECT_TRUE(names.add(name("one"), 0) && names.add(name("first"), 0) && names.add(name("two"), 1));
    EXPECT_FALSE(names.add(name("one"), 1) || names.add(name(""), 1) || names.add(nullptr, 1));
    EXPECT_EQ(names.find("first"), 0);
    EXPECT_EQ(names.find(""), -1);
    const zvValue one(1);
    const zvValue* const values[] = {&one, nullptr};
    zvCndContext context;
    context.borrowAttributes(names, values);
    EXPECT_EQ(context.findValue("one"), &one);
    EXPECT_EQ(context.findValue("first"), &one);
    EXPECT_EQ(context.findValue("two"), nullptr);
    EXPECT_EQ(zvCndContext(context).findValue("one"), &one);
    EXPECT_FALSE(context.setAttribute("one", "2", zvDataTypeInteger));
    const zvString first("first");
    EXPECT_FALSE(context.borrowAttribute(first, one));
    EXPECT_TRUE(context.setAttribute("two", "2", zvDataTypeInteger));
    EXPECT_TRUE(parse("{one} = '1' AND {two} = '2'")->evaluate(zvCndContext(context)));
}

// Once with what an operand keeps of its text, and once with the value alone.
TEST(zvCndOperandTest, AConstantComparesAsItsText) {
    const char* const texts[] = {"12",
                                 "-3",
                                 "2.5",
                                 "-2.5",
                                 "2.50001",
                                 "0",
                                 "-0",
                                 "1",
                                 "007",
                                 " 12",
                                 "12 x",
                                 "1e2",
                                 "abc",
                                 ".5",
                                 "5.",
                                 "True",
                                 "--1",
                                 "-",
                                 "2147483648",
                                 "999999999999999",
                                 "9999999999999999",
                                 "1.2.3"};
    const zvValue values[] = {zvValue(12),    zvValue(-3),    zvValue(2),     zvValue(2.5F),
                              zvValue(-2.5F), zvValue(0.5F),  zvValue(true),  zvValue(false),
                              zvValue("12"),  zvValue("abc"), zvValue(100.0F)};
    for (const zvValue& value : values) {
        for (const char* const constant : texts) {
            zvCndContext context;
            add(context, "name", value);
            const zvValue plain{zvString(constant)};
            const bool isOrdered = value.getDataType() != zvDataTypeBoolean;
            const auto compared = allComparisons(variable("name"), text(constant));
            const bool expected[] = {value == plain,
                                     value != plain,
                                     isOrdered && value < plain,
                                     isOrdered && value <= plain,
                                     isOrdered && value > plain,
                                     isOrdered && value >= plain};
            for (std::size_t i = 0; i < (isOrdered ? compared.size() : 2); ++i) {
                EXPECT_EQ(compared[i]->evaluate(context), expected[i])
                    << narrow(value.getValue()) << " and " << constant << ", comparison " << i;
            }
        }
    }
}

TEST(zvCndOperandTest, AChangedValueKeepsNothingOfItsText) {
    const zvCndOperand operands[] = {text("12"), variable("12"), text("2.5"), variable("name")};
    for (const zvCndOperand& operand : operands) {
        zvValue value = operand.getValue();
        value.setDataType(zvDataTypeInteger);
        EXPECT_EQ(value.getIntValue(), -1);
        value.setDataType(zvDataTypeFloat);
        EXPECT_EQ(value.getFloatValue(), -1.0F);
        value = operand.getValue();
        value.setStrValue("7");
        EXPECT_EQ(value.getIntValue(), 7);
        EXPECT_EQ(value.getFloatValue(), 7.0F);
        EXPECT_TRUE(value.getBoolValue());
    }
    zvCndContext context;
    add(context, "12", zvValue("0"));
    zvCndOperand operand = text("12");
    const auto isEqual = [&operand, &context](const char* constant) {
        return Factory::createEqualsCondition(operand, text(constant))->evaluate(context);
    };
    EXPECT_TRUE(isEqual("12") && !isEqual("0"));
    operand.setValueType(zvOperandVariable);
    EXPECT_TRUE(isEqual("0") && !isEqual("12"));
    operand.setValue(zvValue(12));
    EXPECT_TRUE(isEqual("0")) << "the name is the number's text";
    operand.setValueType(zvOperandConstant);
    EXPECT_TRUE(isEqual("12") && !isEqual("0"));
    operand.setValueType(static_cast<zvOperandValueTypeEnum>(2));
    EXPECT_FALSE(isEqual("12") || isEqual("0"));
}

// The results of = != < <= > >= as 1 or 0; "!" for one that throws.
std::string outcomes(const zvCndOperand& lhs, const zvCndOperand& rhs) {
    zvCndContext context;
    add(context, "five", zvValue(5));
    add(context, "text", zvValue(zvString("abc")));
    add(context, "empty", zvValue(zvString()));
    add(context, "none", zvValue());
    add(context, "true", zvValue(true));
    add(context, "5", zvValue(zvString("named by a number")));
    std::string outcome;
    for (const zvCndCondition& comparison : allComparisons(lhs, rhs)) {
        try {
            outcome += comparison->evaluate(context) ? '1' : '0';
        } catch (const zvException&) {
            outcome += '!';
        }
    }
    return outcome;
}

TEST(zvICndComparisonConditionTest, ComparesTheValuesOfItsOperands) {
    struct Case {
        zvCndOperand lhs, rhs;
        const char* expected;
    };
    const Case cases[] = {
        //                                                          = != < <= > >=
        {variable("five"), text("5"), "100101"},
        {variable("five"), text("12"), "011100"},
        {text("5"), variable("five"), "101010"},
        {variable("text"), text("abc"), "101010"},
        {variable("text"), text("abd"), "011100"},
        {variable("empty"), text("a"), "011100"},
        {variable("empty"), variable("none"), "101010"},
        {variable("true"), text("1"), "10!!!!"},
        {variable("five"), variable("true"), "!!!!!!"},
        {operand(zvValue(5)), operand(zvValue(2.5F)), "010011"},
        {operand(zvValue(false)), text("0"), "10!!!!"},
        {operand(zvValue(5), zvOperandVariable), text("named by a number"), "101010"},
        // One operand is missing.
        {variable("absent"), text("1"), "000000"},
        {text("1"), variable("absent"), "000000"},
        {variable("absent"), variable("absent"), "000000"},
        {text(""), text(""), "000000"},
        {variable("true"), text(""), "000000"},
        {operand(zvValue()), variable("none"), "000000"},
        {variable(""), text("1"), "000000"},
        {operand(zvValue(1), 2), text("1"), "000000"},
    };
    for (const Case& oneCase : cases) {
        EXPECT_EQ(oneCase.expected, outcomes(oneCase.lhs, oneCase.rhs))
            << narrow(oneCase.lhs.getValue().getValue()) << " " << narrow(oneCase.rhs.getValue().getValue());
    }
}

TEST(zvICndComparisonConditionTest, AssignsTheValueOfAMissingOperandToo) {
    struct Probe : zvICndEqualsCondition {
        using zvICndEqualsCondition::getOperandValue;
    };
    zvCndContext context;
    add(context, "five", zvValue(5));
    const zvCndHandle<Probe> probe(new Probe);
    zvValue value(7);
    EXPECT_FALSE(probe->getOperandValue(operand(zvValue(1), 2), context, value));
    EXPECT_EQ(7, value.getIntValue());
    EXPECT_TRUE(probe->getOperandValue(variable("five"), context, value));
    EXPECT_EQ(5, value.getIntValue());
    EXPECT_FALSE(probe->getOperandValue(variable("absent"), context, value));
    EXPECT_EQ(zvDataTypeNone, value.getDataType());
    EXPECT_FALSE(probe->getOperandValue(text(""), context, value));
    EXPECT_EQ(zvDataTypeString, value.getDataType());
}

TEST(zvICndLogicalConditionTest, ShortCircuits) {
    const zvCndContext context;
    const zvCndCondition throwing = Factory::getCondition(
        Factory::createLessThanCondition(operand(zvValue(true)), operand(zvValue(true))));
    const zvCndOrCondition anyOf = Factory::createOrCondition();
    EXPECT_FALSE(anyOf->evaluate(context));
    EXPECT_FALSE(andOf({})->evaluate(context));
    EXPECT_TRUE(notOf(Factory::getCondition(andOf({})))->evaluate(context));
    EXPECT_FALSE(andOf({fixed(true), Factory::getCondition(anyOf)})->evaluate(context));
    EXPECT_FALSE(andOf({fixed(true), fixed(false), throwing})->evaluate(context));
    EXPECT_TRUE(andOf({fixed(true), notOf(fixed(false))})->evaluate(context));
    EXPECT_EQ("On boolean datatype only equal to and not equal to action happens", messageThrownBy([&] {
                  andOf({fixed(true), throwing})->evaluate(context);
              }));
    anyOf->addCondition(fixed(false));
    EXPECT_FALSE(anyOf->evaluate(context));
    anyOf->addCondition(Factory::getCondition(andOf({fixed(true), fixed(true)})));
    anyOf->addCondition(throwing);
    FixedCondition::evaluations = 0;
    EXPECT_FALSE(notOf(Factory::getCondition(anyOf))->evaluate(context));
    EXPECT_EQ(3, FixedCondition::evaluations);
}

TEST(zvICndLogicalConditionTest, RefusesNullChildren) {
    EXPECT_FALSE(andOf({})->addCondition(zvCndCondition()));
    EXPECT_TRUE(andOf({fixed(true)})->getCondition(-1).IsNull());
    EXPECT_TRUE(andOf({fixed(true)})->getCondition(1).IsNull());
    const zvCndNotCondition negation = Factory::createNotCondition();
    EXPECT_TRUE(negation->getCondition().IsNull());
    EXPECT_TRUE(negation->setCondition(fixed(true)));
    EXPECT_FALSE(negation->setCondition(zvCndCondition()));
    EXPECT_EQ(2, owners(negation->getCondition()));
    EXPECT_TRUE(negation->setCondition(fixed(false)));
    EXPECT_EQ(1, FixedCondition::living);
}

// A condition with an evaluate() of its own over one of the library's classes.
template <class Base>
class Opposite : public Base {
public:
    bool evaluate(const zvCndContext& context) const override {
        ++FixedCondition::evaluations;
        return !Base::evaluate(context);
    }
};

TEST(zvICndLogicalConditionTest, CallsAnEvaluateOfItsOwnAnywhere) {
    const zvCndContext context;
    const zvCndHandle<Opposite<zvICndAndCondition>> notAll(new Opposite<zvICndAndCondition>);
    const zvCndHandle<Opposite<zvICndOrCondition>> none(new Opposite<zvICndOrCondition>);
    const zvCndHandle<Opposite<zvICndNotCondition>> same(new Opposite<zvICndNotCondition>);
    notAll->addCondition(fixed(true));
    none->addCondition(fixed(true));
    same->setCondition(fixed(false));
    for (const zvCndCondition& own :
         {Factory::getCondition(notAll), Factory::getCondition(none), Factory::getCondition(same)}) {
        FixedCondition::evaluations = 0;
        EXPECT_FALSE(own->evaluate(context));
        EXPECT_FALSE(andOf({own})->evaluate(context));
        EXPECT_TRUE(notOf(own)->evaluate(context));
        EXPECT_FALSE(notOf(notOf(Factory::getCondition(andOf({fixed(true), own}))))->evaluate(context));
        EXPECT_EQ(9,
                  FixedCondition::evaluations);  // own and its child four times, and the fixed one beside it
    }
}

TEST(zvICndConditionTest, CopiesOfConditionsAreConditionsOfTheirOwn) {
    const zvCndLessThanCondition less = Factory::createLessThanCondition(variable("n"), text("5"));
    const zvCndLessThanCondition lessCopy(new zvICndLessThanCondition(*less.operator->()));
    const zvCndNotCondition none = Factory::createNotCondition();
    EXPECT_TRUE(none->setCondition(Factory::getCondition(less)));
    const zvCndNotCondition noneCopy(new zvICndNotCondition(*none.operator->()));
    EXPECT_EQ(owners(lessCopy), 1);
    EXPECT_EQ(owners(noneCopy), 1);
    zvCndContext four;
    add(four, "n", zvValue(zvString("4")));
    less->setRHSOperand(text("3"));
    EXPECT_FALSE(less->evaluate(four));
    EXPECT_TRUE(lessCopy->evaluate(four));
    EXPECT_TRUE(none->evaluate(four));
    EXPECT_TRUE(noneCopy->evaluate(four)) << "it has the same child, which was changed";
    EXPECT_TRUE(none->setCondition(fixed(true)));
    EXPECT_FALSE(none->evaluate(four));
    EXPECT_TRUE(noneCopy->evaluate(four));

    *lessCopy.operator->() = *less.operator->();
    *noneCopy.operator->() = *none.operator->();
    EXPECT_FALSE(lessCopy->evaluate(four));
    EXPECT_FALSE(noneCopy->evaluate(four));
    EXPECT_EQ(owners(lessCopy), 1);
    EXPECT_EQ(write(Factory::getCondition(lessCopy)), "{n} < '3'");
}

TEST(zvCndContextTest, CopiesHaveAttributesOfTheirOwnAndShareBorrowedOnes) {
    const zvString lent("lent");
    const zvValue lentValue(7);
    zvCndContext context;
    add(context, "own", zvValue(1));
    EXPECT_TRUE(context.borrowAttribute(lent, lentValue));
    const zvCndContext copy(context);
    zvCndContext assigned;
    add(assigned, "gone", zvValue(0));
    assigned = context;
    EXPECT_TRUE(context.setAttribute("own", "2", zvDataTypeInteger));
    for (const zvCndContext* const other : {&copy, &std::as_const(assigned)}) {
        ASSERT_NE(other->findValue("own"), nullptr);
        EXPECT_EQ(other->findValue("own")->getValue(), "1");
        EXPECT_EQ(other->findValue(lent), &lentValue);
        EXPECT_EQ(other->findValue("gone"), nullptr);
    }
    EXPECT_FALSE(assigned.borrowAttribute(lent, lentValue)) << "it is there";
    EXPECT_FALSE(assigned.setAttribute(lent, "8", zvDataTypeInteger)) << "a lent value is another's";
}

TEST(zvCndConditionResultMapTest, CopiesHaveResultsOfTheirOwn) {
    const zvCndCondition known = fixed(true);
    const zvCndCondition later = fixed(true);
    zvCndConditionResultMap results;
    EXPECT_TRUE(results.addConditionResult(known, Factory::createOrCondition()));
    const zvCndConditionResultMap copy(results);
    zvCndConditionResultMap assigned;
    EXPECT_TRUE(assigned.addConditionResult(later, Factory::createOrCondition()));
    assigned = results;
    EXPECT_TRUE(results.addConditionResult(later, Factory::createOrCondition()));
    for (const zvCndConditionResultMap* const other : {&copy, &std::as_const(assigned)}) {
        EXPECT_EQ(other->getConditionResult(known).operator->(),
                  results.getConditionResult(known).operator->());
        EXPECT_TRUE(other->getConditionResult(later).IsNull());
    }
}

TEST(zvICndConditionTest, ACopySharesTheChildrenAndHasNoOwnersYet) {
    const zvCndAndCondition original = andOf({fixed(true)});
    const zvCndAndCondition copy(new zvICndAndCondition(*original.operator->()));
    EXPECT_EQ(1, owners(copy));
    copy->addCondition(fixed(false));
    EXPECT_EQ(1, original->numConditions());
    EXPECT_TRUE(original->evaluate(zvCndContext()));
    EXPECT_FALSE(copy->evaluate(zvCndContext()));
    *copy.operator->() = *original.operator->();
    EXPECT_TRUE(copy->evaluate(zvCndContext()));
    EXPECT_EQ(1, FixedCondition::living);
    const zvCndOrCondition other = Factory::createOrCondition();
    const zvICndListCondition& assigned = *original.operator->();
    static_cast<zvICndListCondition&>(*other.operator->()) = assigned;
    EXPECT_EQ(zvCndConditionOr, other->getConditionType());
}

}  // namespace
