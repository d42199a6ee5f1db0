#include "zvCndParsingUtils.h"

#include <utility>
#include <vector>

#include "zvConditionTestSupport.h"
#include "zvRecordingLogger.h"

namespace {

using zvCndParsingUtilsTest = zvLoggedTest;

using Utils = zvCndParsingUtils;
using Lines = std::vector<std::string>;

const std::string tooFewForAnd = "Empty condition stack,\tonly one condition added to AND conditoin";
const std::string tooFewForOr = "Empty condition stack, only one condition added to OR condition";
const std::string operatorNotFound = "Valid condition operator not found";
const std::string badUsage = "Invalid condition string, check the usage of operators";
const std::string badSyntax = "Invalid condition string, check the syntax of condition string";

// The failure as "message @ position".
std::string failure(const zvString& text) {
    try {
        Utils::createConditionStructure(text);
    } catch (const zvException& thrown) {
        return narrow(thrown.getResult().getMessage() + " @ " +
                      thrown.getResult().getAdditionalInformation());
    }
    return "none";
}

TEST_F(zvCndParsingUtilsTest, KeepsChildrenFromRightToLeftAndFlattensRuns) {
    const std::pair<const char*, const char*> cases[] = {
        {"{a} = '1'", "{a} = '1'"},
        {" \t{a}='1'\n", "{a} = '1'"},
        {"'x' >= {a}", "'x' >= {a}"},
        {"{a} < {b}", "{a} < {b}"},
        {"= {a} '1'", "{a} = '1'"},
        {"{a} = != '1'", "{a} != '1'"},
        {"(({a}) <= (('1')))", "{a} <= '1'"},
        {"() {a} = '1' ()", "{a} = '1'"},
        {"{ AND '(x) } = '{b} NOT'", "{ AND '(x) } = '{b} NOT'"},
        {"NOT {a} = '1'", "NOT ( {a} = '1' ) "},
        {"NOT NOT {a} = '1'", "NOT ( NOT ( {a} = '1' )  ) "},
        {"{a} = '1' AND {b} > '2'", " ( {b} > '2' ) AND ( {a} = '1' ) "},
        {"{a} = '1' AND {b} = '2' AND {c} = '3'", " ( {c} = '3' ) AND ( {b} = '2' ) AND ( {a} = '1' ) "},
        {"{a} = '1' OR {b} = '2' OR {c} = '3'", " ( {c} = '3' ) OR ( {b} = '2' ) OR ( {a} = '1' ) "},
        {"{a} = '1' OR {b} = '2' AND {c} = '3'", " (  ( {c} = '3' ) AND ( {b} = '2' )  ) OR ( {a} = '1' ) "},
        {"{a} = '1' AND {b} = '2' OR {c} = '3'", " ( {c} = '3' ) OR (  ( {b} = '2' ) AND ( {a} = '1' )  ) "},
        {"({a} = '1' OR {b} = '2') AND {c} = '3'",
         " ( {c} = '3' ) AND (  ( {b} = '2' ) OR ( {a} = '1' )  ) "},
        // A nested chain is flattened only as the rightmost operand.
        {"{a} = '1' OR ({b} = '2' OR {c} = '3')", " ( {c} = '3' ) OR ( {b} = '2' ) OR ( {a} = '1' ) "},
        {"({a} = '1' OR {b} = '2') OR {c} = '3'", " ( {c} = '3' ) OR (  ( {b} = '2' ) OR ( {a} = '1' )  ) "},
        {"NOT {a} = '1' AND NOT ({b} = '2')", " ( NOT ( {b} = '2' )  ) AND ( NOT ( {a} = '1' )  ) "},
        {"{state} = 'RELEASED' AND ( {rev} > '2' OR NOT {owner} != 'admin' )",
         " (  ( NOT ( {owner} != 'admin' )  ) OR ( {rev} > '2' )  ) AND ( {state} = 'RELEASED' ) "},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(expected, write(parse(text))) << text;
    }
}

TEST_F(zvCndParsingUtilsTest, ReportsTheErrorAndItsPosition) {
    struct Case {
        const char* text;
        std::string message;
        int position;
    };
    const Case cases[] = {
        {"", "Empty condition string received", 0},
        {"  ", badUsage, 2},
        {"{a} == '1'", operatorNotFound, 4},
        {"  {a} == '1'", operatorNotFound, 6},
        {"{a} =< '1'", operatorNotFound, 4},
        {"{a} = '1' and {b} = '2'", operatorNotFound, 10},
        {"{a} = '1' ANDNOT {b} = '2'", operatorNotFound, 10},
        {"{a}\t= '1'", operatorNotFound, 3},
        {"{a} = '1'\\", operatorNotFound, 9},
        {"( {a} = '1'", "Error in matching parenthesis, closing parenthesis missing", 0},
        {" {a} = '1' AND ( ( {b} = '2' ) ", "Error in matching parenthesis, closing parenthesis missing", 15},
        {"( {a} = '1' AND", tooFewForAnd, 15},
        {"{a} = '1' )", "Error in matching parenthesis", 10},
        {"NOT {a} = '1' ) ", "Error in matching parenthesis, opening parenthesis missing", 14},
        {"{a} = '1' {b} = '2'", badUsage, 19},
        {"{a}", badUsage, 3},
        {"{a = '1'", badSyntax, 0},
        {"{a} = '1' AND {", badSyntax, 14},
        {"{a} = '1", badSyntax, 6},
        {"{a} = '", badSyntax, 6},
        {"{a} = 'x\\' ", badSyntax, 6},
        {"{{a}} = '1'", "1.Variable Operand syntax error", 1},
        {"a} = '1'", "2.Variable Operand syntax error", 1},
        {"{a} = ANDY}", "2.Variable Operand syntax error", 10},
        {"a b} = '1'", operatorNotFound, 0},
        {"= } '1'", "2.Variable Operand syntax error", 2},
        {"'' = {a}", "LHS operand string is empty", 1},
        {"{} = 'a'", "LHS operand string is empty", 1},
        {"{a} = ''", "RHS operand string is empty", 7},
        {"{a} '1'", "Comparison condition operator not found", 6},
        {"{a} = '1' AND {b} '2'", "Comparison condition operator not found", 20},
        {"NOT", "Null Logical Condition or Empty condition stack", 3},
        {"NOT AND {a} = '1'", "Null Logical Condition or Empty condition stack", 4},
        {"{a} = '1' AND ", tooFewForAnd, 14},
        {"OR {a} = '1'", tooFewForOr, 12},
        {"{a} = '1' AND OR {b} = '2'", tooFewForAnd, 14},
        {"{a} = '1' OR ( {b} = '2' OR )",
         "Empty condition stack,\tsetting child elements of OR condition failed", 29},
        {"({a} = '1' AND {b} = '2') AND",
         "Empty condition stack,\tsetting child elements of AND condition failed", 29},
        {"({a} = '1' OR {b} = '2') OR",
         "Empty condition stack,\tsetting child elements of OR condition failed", 27},
    };
    for (const Case& oneCase : cases) {
        EXPECT_EQ(oneCase.message + " @ " + std::to_string(oneCase.position), failure(oneCase.text))
            << oneCase.text;
    }
}

TEST_F(zvCndParsingUtilsTest, LogsTheTextAndTheFailure) {
    parse("{a} = '1'");
    EXPECT_EQ(operatorNotFound + " @ 4", failure("{a} == '1'"));
    EXPECT_EQ((Lines{"info: zvCndParsingUtils::createConditionStructure - {a} = '1'",
                     "info: zvCndParsingUtils::createConditionStructure - {a} == '1'",
                     "error: " + operatorNotFound}),
              zvRecordingLogger::lines());
    EXPECT_EQ("zvConditionUtils.m/src/zvCndParsingUtils", zvRecordingLogger::events().back().file);
}

TEST_F(zvCndParsingUtilsTest, UnescapesByThePreviousCharacterAlone) {
    struct Case {
        const char* written;
        const char* constant;
        const char* writtenBack;
    };
    const Case cases[] = {
        {R"('it\'s')", "it's", R"('it\'s')"},
        {R"('\'')", "'", R"('\'')"},
        {R"('a\b')", "ab", "'ab'"},
        {R"('a\\b')", R"(a\b)", R"('a\\b')"},
        {R"('a\\\b')", R"(a\\b)", R"('a\\\\b')"},
        {R"('a\\\\b')", R"(a\\\b)", R"('a\\\\\\b')"},
        {R"('a\\'b')", R"(a\'b)", R"('a\\\'b')"},
        {R"('{a} AND ( ')", "{a} AND ( ", "'{a} AND ( '"},
    };
    for (const Case& oneCase : cases) {
        const zvCndCondition condition = parse(std::string("{x} = ") + oneCase.written);
        const zvCndComparisonCondition comparison = zvCndConditionFactory::getComparisonCondition(condition);
        EXPECT_EQ(oneCase.constant, narrow(comparison->getRHSOperand().getValue().getValue()));
        EXPECT_EQ(std::string("{x} = ") + oneCase.writtenBack, write(condition));
    }
    EXPECT_EQ(badSyntax + " @ 6", failure(R"({x} = 'a\\')"));
}

TEST_F(zvCndParsingUtilsTest, TakesAnyCodeUnitsLiterally) {
    const char16_t units[] = {u'{', 0xD800, 0xFFFF, u'}', u'=', u'\'', 0xDC00, 0xDBFF, 1, u'\'', 0};
    const char16_t expected[] = {u'{',  0xD800, 0xFFFF, u'}', u' ',  u'=', u' ',
                                 u'\'', 0xDC00, 0xDBFF, 1,    u'\'', 0};
    EXPECT_EQ(zvString(expected), Utils::createConditionString(Utils::createConditionStructure(units)));
    EXPECT_EQ(operatorNotFound + " @ 0", failure(u"\u0141ND"));
    EXPECT_EQ(operatorNotFound + " @ 3", failure(u"{a}\u00A0= '1'"));
    EXPECT_EQ(badUsage + " @ 1", failure(u"\u3000"));
}

TEST_F(zvCndParsingUtilsTest, WritesValuesOfAnyType) {
    zvCndOperand constant;
    constant.setValue(zvValue(5));
    zvCndOperand unknown;
    unknown.setValueType(static_cast<zvOperandValueTypeEnum>(2));
    EXPECT_EQ("'5' < ", write(zvCndConditionFactory::getCondition(
                            zvCndConditionFactory::createLessThanCondition(constant, unknown))));
    EXPECT_EQ("", write(zvCndConditionFactory::getCondition(zvCndConditionFactory::createAndCondition())));
    const char* const null = "NULL condition received inside zvCndParsingUtils::createConditionString";
    EXPECT_EQ(null, messageThrownBy([] { write(zvCndCondition()); }));
    EXPECT_EQ(null, messageThrownBy([] {
                  write(zvCndConditionFactory::getCondition(zvCndConditionFactory::createNotCondition()));
              }));
    EXPECT_EQ("Undefined condition received inside zvCndParsingUtils::createConditionString",
              messageThrownBy([] { write(fixed(true)); }));
}

TEST_F(zvCndParsingUtilsTest, CreatesComparisonsFromStrings) {
    EXPECT_EQ("{a} >= '1'",
              write(Utils::createComparisonCondition(zvCndConditionGreaterThanEquals, "a", "1")));
    const char* const empty =
        "Empty Operand string or Undefined condition type, check condition string syntax";
    const char* const invalid = "Invalid comparision condition operator, check the condition string syntax";
    const auto refusal = [](int type, const char* lhs, const char* rhs) {
        return messageThrownBy([=] {
            Utils::createComparisonCondition(static_cast<zvCndConditionTypeEnum>(type), zvString(lhs), rhs);
        });
    };
    EXPECT_EQ(empty, refusal(zvCndConditionEquals, "", "1"));
    EXPECT_EQ(empty, refusal(zvCndConditionEquals, "a", ""));
    EXPECT_EQ(empty, refusal(zvCndConditionNone, "a", "1"));
    EXPECT_EQ(invalid, refusal(zvCndConditionAnd, "a", "1"));
    EXPECT_EQ(invalid, refusal(15, "a", "1"));
}

// The protected operations, as used by a derived class.
struct Steps : zvCndParsingUtils {
    static void test() {
        int position = 4;
        EXPECT_EQ(zvString("ANDNOT"), findCndOperator("{a} ANDNOT x", position));
        EXPECT_EQ(9, position);
        EXPECT_TRUE(findCndOperator("{a}", position).empty());
        EXPECT_EQ(9, position);
        EXPECT_EQ(zvCndConditionAnd, convertToConditionType("and"));
        EXPECT_EQ(zvCndConditionLessThanEquals, convertToConditionType("<="));
        EXPECT_EQ(zvCndConditionNone, convertToConditionType("ANDY"));
        EXPECT_EQ(zvCndConditionNone, convertToConditionType(""));
        EXPECT_EQ(3, getOperatorPrecedence("Not"));
        EXPECT_EQ("Failed to get precedence value, Invalid logical condition operator",
                  messageThrownBy([] { getOperatorPrecedence("="); }));
        EXPECT_EQ("Invalid logical condition operator", messageThrownBy([] { createLogicalCondition("<"); }));
        EXPECT_EQ(
            "Empty Operand or Undefined condition type, check condition string syntax",
            messageThrownBy([] { createComparisonCondition(zvCndConditionEquals, zvCndOperand(), {}); }));

        zvCndConditionList conditions;
        EXPECT_EQ("Null Logical Condition or Empty condition stack",
                  messageThrownBy([&] { setLogicalCndIntoCndStack(fixed(true), conditions); }));
        conditions.addCondition(parse("{a} = '1'"));
        EXPECT_EQ("zvCndParsingUtils::setLogicalCndIntoCndStack -\tInvalid logical condition received",
                  messageThrownBy([&] { setLogicalCndIntoCndStack(fixed(true), conditions); }));
        conditions.addCondition(parse("{b} = '2'"));
        zvStringList operators;
        operators.addString("(");
        processLogicalCndOperatorString("OR", operators, conditions);
        processLogicalCndOperatorString("NOT", operators, conditions);
        processLogicalCndOperatorString("AND", operators, conditions);
        EXPECT_EQ(3, operators.numStrings());
        operators.pop();
        processStrOperatorStack(operators, conditions, true);
        EXPECT_TRUE(operators.empty());
        EXPECT_EQ(" ( NOT ( {b} = '2' )  ) OR ( {a} = '1' ) ", write(conditions.back()));
    }
};

TEST_F(zvCndParsingUtilsTest, ProtectedOperationsCanBeUsed) { Steps::test(); }

}  // namespace
