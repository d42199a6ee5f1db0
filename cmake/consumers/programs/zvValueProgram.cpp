#include "zvCheck.h"
#include "zvDataTypeEnum.h"
#include "zvDateTime.h"
#include "zvValue.h"

namespace {

const wchar16 wide[] = {'a', 'b', 'c', 0};

class DerivedValue : public zvValue {
public:
    DerivedValue() { initialize(); }
    explicit DerivedValue(const zvValue& other) { copy(other); }
};

class DerivedDate : public zvDateTime {
public:
    explicit DerivedDate(const zvDateTime& other) { copy(other); }
};

zvDataTypeEnum typeOf(const zvValue& value) { return zvValue(value).getDataType(); }

void construct() {
    zvValue none, integer = 5, number = 2.5F, flag = true, text = zvString("abc"), literal = "abc";
    zvValue wideLiteral = u"abc", units = wide, date = zvDateTime(2011, 5, 21, 11, 12, 22);
    ZV_CHECK(typeOf(none) == zvDataTypeNone && typeOf(integer) == zvDataTypeInteger);
    ZV_CHECK(typeOf(number) == zvDataTypeFloat && typeOf(flag) == zvDataTypeBoolean);
    ZV_CHECK(typeOf(text) == zvDataTypeString && typeOf(date) == zvDataTypeDate);
    ZV_CHECK(typeOf("abc") == zvDataTypeString && typeOf(u"abc") == zvDataTypeString && literal == text);
    ZV_CHECK(wideLiteral == text && units == text && typeOf(wide) == zvDataTypeString);
    ZV_CHECK(integer == 5 && number == 2.5F && flag == true && text == "abc" && text == u"abc" &&
             integer != 6);
    ZV_CHECK(integer == "5" && integer < 6 && integer <= 5 && integer > 4 && integer >= 5 && typeOf(0) == 1);
    ZV_CHECK(zvValue("7", zvDataTypeInteger, 3) == 7 && zvValue(7, zvDataTypeInteger, 0) == 7);
    integer = 6;
    integer = "text";
    integer = flag;
    ZV_CHECK(integer.getBoolValue() && DerivedValue(literal) == "abc" &&
             typeOf(DerivedValue()) == zvDataTypeNone);
}

void change() {
    zvValue value;
    value.setBoolValue(true);
    value.setIntValue(3);
    value.setFloatValue(2.75F, 5);
    ZV_CHECK(value.getIntValue() == 2 && value.getFloatValue() == 2.75F);
    value.setStrValue(12);
    ZV_CHECK(value.getIntValue() == 12 && value.getStrValue() == 12 && value.getValue() == "12");
    value.setDateValue(zvString("DD/MM/YYYY"));
    value.setDataType(zvDataTypeString);
    value.setValue(1, zvDataTypeBoolean, 0);
    ZV_CHECK(value.getBoolValue());
    value.setValue("21/05/2011::11-12-22", zvDataTypeDate, 0);
    ZV_CHECK(value.getDateValue().getYear() == 2011);
    try {
        use(zvValue().getIntValue());
        ZV_CHECK(false);
    } catch (const zvException& exception) {
        ZV_CHECK(exception.getResult().getMessage() == "Data cannot be converted to integer datatype");
    }
}

void dates() {
    zvDateTime none, pattern = zvString("DD-MM-YYYY"), literal("YYYY"), whole(2011, 5, 21, 11, 12, 22);
    zvDateTime epoch = zvInt64{86400}, day = 86400, copy(whole);
    copy = 86400;
    ZV_CHECK(pattern.getDateFormat() == "DD-MM-YYYY" && epoch == day && copy == day && day == 86400);
    copy.setYear(2012);
    copy.setMonth(1);
    copy.setDay(2);
    copy.setHour(3);
    copy.setMinute(4);
    copy.setSecond(5);
    ZV_CHECK(copy.getYear() + copy.getMonth() + copy.getDay() == 2015 && copy.isInitialized());
    ZV_CHECK(copy.getHour() + copy.getMinute() + copy.getSecond() == 12 && !none.isInitialized());
    copy.setDate("21/05/2011::11-12-22", "DD/MM/YYYY::hh-mm-ss");
    ZV_CHECK(copy == whole && !(copy != whole) && copy <= whole && copy >= whole && epoch < copy &&
             copy > epoch);
    ZV_CHECK(whole.getDateTime("DD/MM/YYYY::hh-mm-ss", '/', '-') == "21/5/2011::11-12-22");
    ZV_CHECK(whole.getDate("DD/MM/YYYY", '.') == "21.5.2011" && whole.getTime("hh-mm-ss", ':') == "11:12:22");
    ZV_CHECK(whole.toString() == "Day: |21/5/2011| Time: |11-12-22|" && DerivedDate(whole) == whole);
    copy.setDateTimeInSeconds(whole.getDateTimeInSeconds());
    ZV_CHECK(copy == whole && literal.getDateFormat() == "YYYY");
    copy.setCurrentDateTime();
}

}  // namespace

int main() {
    construct();
    change();
    dates();
    return failures;
}
