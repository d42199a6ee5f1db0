// Property tests: random trees compared with a reference evaluator, and very deep and very wide trees.

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <vector>

#include "zvConditionTestSupport.h"

namespace {

using Attributes = std::map<std::string, std::string>;

// The reference model: writes itself as a condition string and evaluates itself on plain strings.
struct Expression {
    std::string token;  // of a comparison if there are no children
    std::string name, constant;
    std::vector<Expression> children;

    std::string text(std::mt19937& random) const {
        const std::string blank(random() % 2, ' ');
        if (children.empty()) {
            return "{" + name + "}" + blank + token + blank + "'" + constant + "'";
        }
        if (token == "NOT") {
            return "NOT" + blank + "(" + children[0].text(random) + ")";
        }
        std::string joined;
        for (const Expression& child : children) {
            joined.append(joined.empty() ? "(" : blank + token + "(").append(child.text(random)).append(")");
        }
        return joined;
    }

    bool holds(const Attributes& attributes) const {
        const auto childHolds = [&](const Expression& child) { return child.holds(attributes); };
        if (token == "NOT") {
            return !childHolds(children[0]);
        }
        if (token == "AND") {
            return std::all_of(children.begin(), children.end(), childHolds);
        }
        if (token == "OR") {
            return std::any_of(children.begin(), children.end(), childHolds);
        }
        const auto found = attributes.find(name);
        return found != attributes.end() && compare(found->second);
    }

    // On strings, <= and >= are strict, and < and > are their negations.
    bool compare(const std::string& value) const {
        if (token == "=" || token == "!=") {
            return (value == constant) == (token == "=");
        }
        const bool isSmaller = value < constant;
        const bool isGreater = value > constant;
        return token == "<=" ? isSmaller : token == ">" ? !isSmaller : token == ">=" ? isGreater : !isGreater;
    }
};

Expression randomExpression(std::mt19937& random, int depth) {
    const std::array<const char*, 6> comparisons = {"=", "!=", "<", "<=", ">", ">="};
    const std::array<const char*, 4> names = {"state", "rev", "AND", "gone"};
    const std::array<const char*, 4> constants = {"1", "2", "10", "a b"};
    const std::array<const char*, 3> logical = {"NOT", "AND", "OR"};
    Expression made;
    if (depth == 0 || random() % 4 == 0) {
        made.token = comparisons[random() % comparisons.size()];
        made.name = names[random() % names.size()];
        made.constant = constants[random() % constants.size()];
        return made;
    }
    made.token = logical[random() % logical.size()];
    const std::size_t children = made.token == "NOT" ? 1 : 2 + random() % 3;
    for (std::size_t i = 0; i < children; ++i) {
        made.children.push_back(randomExpression(random, depth - 1));
    }
    return made;
}

TEST(zvCndTreesTest, RandomTreesEvaluateCorrectlyAndRoundTrip) {
    std::mt19937 random(20110521);
    const std::array<const char*, 4> values = {"1", "2", "10", "a b"};
    for (int round = 0; round < 3000; ++round) {
        const Expression expression = randomExpression(random, 1 + round % 5);
        const Attributes attributes = {{"state", values[random() % values.size()]},
                                       {"rev", values[random() % values.size()]},
                                       {"AND", values[random() % values.size()]}};
        zvCndContext context;
        for (const auto& [name, value] : attributes) {
            add(context, name.c_str(), zvValue(zvString(value.c_str())));
        }
        std::string text = expression.text(random);
        SCOPED_TRACE(text);
        // Each round trip reverses the children and flattens nested chains at the end.
        std::array<std::string, 10> texts;
        for (std::string& written : texts) {
            const zvCndCondition condition = parse(text);
            ASSERT_EQ(expression.holds(attributes), condition->evaluate(context));
            written = text = write(condition);
        }
        ASSERT_EQ(texts[7], texts[9]);
    }
}

std::string repeated(int count, const char* text) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

constexpr int million = 1000000;

struct HugeText {
    const char* name;
    std::string (*text)();
    bool expected;
};

void PrintTo(const HugeText& huge, std::ostream* out) { *out << huge.name; }

class zvCndHugeTextsTest : public testing::TestWithParam<HugeText> {};

TEST_P(zvCndHugeTextsTest, AreParsedEvaluatedWrittenAndFreed) {
    zvCndContext context;
    add(context, "a", zvValue(1));
    const zvCndCondition condition = parse(GetParam().text());
    EXPECT_EQ(GetParam().expected, condition->evaluate(context));
    const zvString written = zvCndParsingUtils::createConditionString(condition);
    const zvCndCondition readAgain = zvCndParsingUtils::createConditionStructure(written);
    EXPECT_EQ(GetParam().expected, readAgain->evaluate(context));
    EXPECT_EQ(written.size(), zvCndParsingUtils::createConditionString(readAgain).size());
}

const char one[] = "{a} = '1'";

const HugeText hugeTexts[] = {
    {"Parentheses", [] { return repeated(million, "(") + one + repeated(million, ")"); }, true},
    {"Nots", [] { return repeated(million + 1, "NOT ") + one; }, false},
    {"ChainOfAnds", [] { return one + repeated(million, " AND {a} = '1'"); }, true},
    {"ChainOfOrs", [] { return one + repeated(million, " OR {a} != '1'"); }, true},
    {"AndsAndOrsToTheRight",
     [] { return repeated(100000, "{a} = '1' AND ({a} != '1' OR (") + one + repeated(100000, "))"); }, true},
    {"AndsAndOrsToTheLeft",
     [] { return repeated(100000, "((") + one + repeated(100000, " AND {a} = '1') OR {a} != '1')"); }, true},
    {"Name", [] { return "{" + std::string(million, '(') + "} != '1'"; }, false},
    {"Escapes", [] { return "{a} != '" + repeated(million, "\\'") + "'"; }, true},
};

INSTANTIATE_TEST_SUITE_P(All, zvCndHugeTextsTest, testing::ValuesIn(hugeTexts),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(zvCndTreesTest, AnEvaluateOfItsOwnIsCalledAtAnyDepth) {
    class Never : public zvICndOrCondition {
    public:
        bool evaluate(const zvCndContext&) const override { return false; }
    };
    auto* const never = new Never;
    zvCndCondition tree(never);
    never->addCondition(parse(repeated(million, "NOT ") + "{a} = '1'"));
    for (int i = 0; i < million; ++i) {
        const zvCndNotCondition negation = zvCndConditionFactory::createNotCondition();
        negation->setCondition(tree);
        tree = zvCndConditionFactory::getCondition(negation);
    }
    EXPECT_FALSE(tree->evaluate(zvCndContext()));
}

TEST(zvCndTreesTest, AnyDepthCanBeRefused) {
    const char* const unclosed = "Error in matching parenthesis, closing parenthesis missing";
    EXPECT_EQ(unclosed, messageThrownBy([] { parse(repeated(million, "(")); }));
    EXPECT_EQ(unclosed, messageThrownBy([] { parse("(" + repeated(million, "NOT ") + "{a} = '1'"); }));
    EXPECT_EQ("Valid condition operator not found", messageThrownBy([] { parse(repeated(million, "A")); }));
    EXPECT_EQ(
        "Valid condition operator not found", messageThrownBy([] {
            parse(repeated(million, "({a} = '1' AND NOT ") + "{a} = '1'" + repeated(million, ")") + "%");
        }));
}

TEST(zvCndTreesTest, ASharedSubtreeOutlivesTheTree) {
    constexpr int depth = 200000;
    std::vector<zvCndCondition> kept;
    zvCndCondition tree = fixed(true);
    for (int i = 0; i < depth; ++i) {
        const zvCndNotCondition negation = zvCndConditionFactory::createNotCondition();
        negation->setCondition(tree);
        const zvCndAndCondition both = zvCndConditionFactory::createAndCondition();
        both->addCondition(zvCndConditionFactory::getCondition(negation));
        both->addCondition(fixed(true));
        tree = zvCndConditionFactory::getCondition(both);
        if (i % 50000 == 0) {
            kept.push_back(tree);
        }
    }
    EXPECT_EQ(depth + 1, FixedCondition::living);
    tree = zvCndCondition();
    EXPECT_EQ(150002, FixedCondition::living);
    EXPECT_FALSE(kept.back()->evaluate(zvCndContext()));
    kept.pop_back();
    EXPECT_EQ(100002, FixedCondition::living);
    kept.clear();
    EXPECT_EQ(0, FixedCondition::living);
}

}  // namespace
