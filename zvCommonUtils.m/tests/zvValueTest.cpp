#include "zvValue.h"

#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include "zvTestSupport.h"

namespace {

// The results of == != < <= > >= as 1 or 0; "!" for one that throws.
std::string comparisons(const zvValue& left, const zvValue& right) {
    using Operator = bool (zvValue::*)(const zvValue&) const;
    const Operator operators[] = {&zvValue::operator==, &zvValue::operator!=, &zvValue::operator<,
                                  &zvValue::operator<=, &zvValue::operator>, &zvValue::operator>= };
    std::string outcome;
    for (const Operator compare : operators) {
        try {
            outcome += (left.*compare)(right) ? '1' : '0';
        } catch (const zvException&) {
            outcome += '!';
        }
    }
    return outcome;
}

zvValue text(const char* value) { return zvValue(zvString(value)); }

TEST(zvValueTest, TextOfAnyKindIsAString) {
    const wchar16 units[] = {'a', 'b', 'c', 0};
    const zvValue texts[] = {"abc", u"abc", units, zvString("abc")};
    for (const zvValue& value : texts) {
        EXPECT_EQ(value.getDataType(), zvDataTypeString);
        EXPECT_EQ(value.getValue(), "abc");
    }
    EXPECT_EQ(zvValue(static_cast<const char*>(nullptr)).getDataType(), zvDataTypeString);
}

TEST(zvValueTest, ComparesByTheTypeOnTheLeft) {
    const zvValue early{zvDateTime(2011, 4, 30, 1, 2, 3)};
    const zvValue late{zvDateTime(2011, 5, 1, 1, 2, 3)};
    const zvValue alsoLate{zvDateTime(2011, 4, 31, 1, 2, 3)};
    struct Case {
        zvValue left, right;
        const char* expected;
    };
    const Case cases[] = {
        //                                       == != < <= > >=
        {zvValue(5), zvValue(5), "100101"},
        {zvValue(4), zvValue(5), "011100"},
        {zvValue(5), text("5"), "100101"},
        {zvValue(2), zvValue(2.9F), "100101"},
        {zvValue(2.9F), zvValue(2), "010011"},
        {zvValue(NAN), zvValue(1.0F), "011010"},
        {text("abc"), text("abc"), "101010"},
        {text("abc"), text("abd"), "011100"},
        {text("b"), text("a"), "010011"},
        {text("5"), zvValue(5), "101010"},
        {text("True"), zvValue(true), "101010"},
        {zvValue(), zvValue(), "101010"},
        {zvValue(), text(""), "101010"},
        {late, alsoLate, "100011"},
        {early, late, "011100"},
        {late, early, "010011"},
        {late, text("1/5/2011::1-2-3"), "100011"},
        {zvValue(true), zvValue(true), "10!!!!"},
        {zvValue(true), text("0"), "01!!!!"},
        {zvValue(1), zvValue(true), "!!!!!!"},
        {zvValue(1.0F), late, "!!!!!!"},
        {zvValue(true), zvValue(1), "!!!!!!"},
        {late, zvValue(1), "!!!!!!"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(comparisons(c.left, c.right), c.expected)
            << narrow(c.left.getValue()) << " and " << narrow(c.right.getValue());
    }
}

TEST(zvValueTest, IsSetFromText) {
    struct Case {
        const char* text;
        int type;
        const char* value;
        int expectedType;
    };
    const Case cases[] = {{"12", 1, "12", 1},
                          {"abc", 1, "0", 1},
                          {"99999999999", 1, "2147483647", 1},
                          {"2.75", 2, "2.750000", 2},
                          {"1e300", 2, "inf", 2},
                          {"text", 3, "text", 3},
                          {"21/05/2011::11-12-22", 4, "21/5/2011::11-12-22", 4},
                          {"True", 5, "False", 5},
                          {"2", 5, "True", 5},
                          {"none", 0, "none", 3},
                          {"nine", 9, "nine", 3}};
    for (const Case& c : cases) {
        const zvValue value(c.text, static_cast<zvDataTypeEnum>(c.type), 5);
        EXPECT_EQ(value.getValue(), c.value) << c.text;
        EXPECT_EQ(value.getDataType(), c.expectedType) << c.text;
    }
}

TEST(zvValueTest, ConvertsOnReading) {
    EXPECT_EQ(zvValue("-2.75", zvDataTypeFloat, 2).getIntValue(), -2);
    EXPECT_EQ(zvValue(3e9F).getIntValue(), INT_MIN);
    EXPECT_EQ(zvValue(-3e9F).getIntValue(), INT_MIN);
    EXPECT_EQ(zvValue(-2147483648.0F).getIntValue(), INT_MIN);
    EXPECT_EQ(zvValue(NAN).getIntValue(), INT_MIN);
    EXPECT_EQ(text(" 7 ").getIntValue(), 7);
    EXPECT_FLOAT_EQ(text("7.5").getFloatValue(), 7.5F);
    EXPECT_FLOAT_EQ(zvValue(7).getFloatValue(), 7.0F);
    EXPECT_TRUE(text("2").getBoolValue());
    EXPECT_FALSE(text("true").getBoolValue());
    EXPECT_EQ(text("1/2/2003::4-5-6").getDateValue().getYear(), 2003);
}

TEST(zvValueTest, ThrowsForImpossibleConversions) {
    const auto message = [](auto action) {
        try {
            action();
        } catch (const zvException& exception) {
            EXPECT_EQ(exception.getMessage(), exception.getResult().getMessage());
            return narrow(exception.getMessage());
        }
        return std::string("nothing thrown");
    };
    EXPECT_EQ(message([] { return zvValue().getIntValue(); }),
              "Data cannot be converted to integer datatype");
    EXPECT_EQ(message([] { return zvValue(true).getFloatValue(); }),
              "Data cannot be converted to float datatype");
    EXPECT_EQ(message([] { return zvValue(1).getBoolValue(); }),
              "Data cannot be converted to boolean datatype");
    EXPECT_EQ(message([] { return zvValue(1).getDateValue().getDay(); }),
              "Data cannot be converted to date datatype");
    EXPECT_EQ(message([] { return zvValue(true) < zvValue(false); }),
              "On boolean datatype only equal to and not equal to action happens");
}

TEST(zvValueTest, ASetterKeepsTheOtherSlots) {
    zvValue value(zvString("kept"));
    value.setIntValue(3);
    EXPECT_EQ(value.getValue(), "3");
    value.setDataType(zvDataTypeString);
    EXPECT_EQ(value.getValue(), "kept");
    value.setDataType(zvDataTypeNone);
    EXPECT_TRUE(value.getValue().empty());
    const zvValue copy(value);
    value.setBoolValue(true);
    EXPECT_EQ(copy.getDataType(), zvDataTypeNone);
    EXPECT_EQ(value.getStrValue(), "True");
}

}  // namespace
