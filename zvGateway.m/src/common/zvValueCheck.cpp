#include "zvValueCheck.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <set>
#include <string_view>

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConditionTree.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvDateTime.h"
#include "zvObjectAttribute.h"

namespace {

// The standard library's reader takes no "+".
std::string_view withoutPlus(std::string_view text) {
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return hasPlus ? text.substr(1) : text;
}

template <class Number>
bool readWhole(std::string_view text, Number& number) {
    const std::string_view digits = withoutPlus(text);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size();
}

bool isInteger(std::string_view text) {
    int number = 0;
    return readWhole(text, number);
}

bool isFloat(std::string_view text) {
    float number = 0;
    return readWhole(text, number) && std::isfinite(number);
}

// The library carries a 31 April over to 1 May. At noon no zone changes its clock.
bool isInCalendar(int day, int month, int year) {
    constexpr short noon = 12;
    const zvDateTime date(static_cast<short>(year), static_cast<short>(month), static_cast<short>(day), noon,
                          0, 0);
    return zvDateTime(date.getDateTimeInSeconds()).getDay() == day;
}

// In the default pattern's order. Earlier and later years are all the same date to the library.
struct DateField {
    std::size_t fewestDigits;
    std::size_t mostDigits;
    int lowest;
    int highest;
    std::string_view separators;  // one of them follows, if a field does
};
constexpr DateField dateFields[] = {{1, 2, 1, 31, "/-"}, {1, 2, 1, 12, "/-"}, {4, 4, 1970, 3000, ":"},
                                    {1, 2, 0, 23, "-/"}, {1, 2, 0, 59, "-/"}, {1, 2, 0, 59, ""}};
constexpr std::size_t dateOnly = 3;

// A date, or a date, "::" and a time.
bool isDate(std::string_view text) {
    int numbers[std::size(dateFields)] = {};
    std::size_t at = 0;
    std::size_t count = 0;
    for (const DateField& field : dateFields) {
        const std::size_t end = std::min(text.find_first_not_of("0123456789", at), text.size());
        const bool hasDigits = end - at >= field.fewestDigits && end - at <= field.mostDigits;
        int& number = numbers[count];
        if (!hasDigits || !readWhole(text.substr(at, end - at), number) || number < field.lowest ||
            number > field.highest) {
            return false;
        }
        ++count;
        if (end == text.size()) {
            return (count == dateOnly || count == std::size(dateFields)) &&
                   isInCalendar(numbers[0], numbers[1], numbers[2]);
        }
        if (field.separators.find(text[end]) == std::string_view::npos ||
            (count == dateOnly && text.substr(end, 2) != "::")) {
            return false;
        }
        at = end + (count == dateOnly ? 2 : 1);
    }
    return false;
}

bool isBoolean(std::string_view text) {
    return text == "0" || text == "1" ||
           zvCommonUtils::validBooleanValue(zvString(std::string(text).c_str()));
}

bool isText(std::string_view) { return true; }

struct Form {
    bool (*accepts)(std::string_view text);
    const char* words;
};

// In the order of zvDataTypeEnum. An unknown type is compared as a text.
constexpr Form forms[] = {
    {isText, "a text"},
    {isInteger, "a whole number from -2147483648 to 2147483647"},
    {isFloat, "a number with a decimal point, as 12.5 or 1e-3"},
    {isText, "a text"},
    {isDate, "a date as DD/MM/YYYY::hh-mm-ss or DD/MM/YYYY, from 1970 to 3000"},
    {isBoolean, "true, false, 1 or 0"},
};

// Of a value that is too long for a line.
constexpr int longestShown = 60;

std::string described(const zvString& name, const zvCfgAttribute& attribute) {
    const std::string line = std::to_string(attribute.getPosition().line);
    const std::u16string_view type = zvDataTypeWords::wordOf(attribute.getDataType());
    return "\"" + zvConsole::printable(name) + "\" (" + std::string(type.begin(), type.end()) + ", line " +
           line + " of the configuration): ";
}

std::string shown(const zvString& name, const zvString& value) {
    const zvString text = zvObjectAttribute::shownValue(name, value);
    const bool isLong = text.size() > longestShown;
    return "\"" + zvConsole::printable(isLong ? text.substr(0, longestShown) + "..." : text) + "\"";
}

class Check {
public:
    explicit Check(const zvObjectMapping& mapping) : m_mapping(mapping) {}

    void checkObject(const zvCfgObject& object) {
        for (int i = 0; i < object.numAttributes(); ++i) {
            const zvCfgAttribute& attribute = *object.getAttribute(i);
            const zvString& name = m_mapping.sourceName(attribute);
            const zvString* const given = m_mapping.findText(name);
            const bool isSent = !name.empty() && !m_mapping.targetName(attribute).empty();
            if (given == nullptr && attribute.isDefaultValueSpecified()) {
                checkValue(attribute, attribute.getDefaultValue(), "the default value ");
            } else if (attribute.isKeyAttribute() && isSent && (given == nullptr || given->empty())) {
                add(described(name, attribute) + "a key attribute needs a value");
            } else if (given != nullptr) {
                checkValue(attribute, *given, "");
            }
        }
    }

    // A rule names an attribute as either system does.
    void checkRule(const zvCfgObject& object) {
        const std::set<zvString> variables = zvConditionTree::variablesOf(object.mappingRule());
        for (int i = 0; i < object.numAttributes(); ++i) {
            const zvCfgAttribute& attribute = *object.getAttribute(i);
            const zvString* const given = m_mapping.findText(m_mapping.sourceName(attribute));
            if (given != nullptr &&
                variables.count(attribute.localName()) + variables.count(attribute.remoteName()) > 0) {
                checkValue(attribute, *given, "");
            }
        }
    }

    std::vector<std::string> faults() { return std::move(m_faults); }

private:
    void checkValue(const zvCfgAttribute& attribute, const zvString& value, const char* kind) {
        if (!zvValueCheck::isValid(value, attribute.getDataType())) {
            const zvString& name = m_mapping.sourceName(attribute);
            add(described(name.empty() ? attribute.anyName() : name, attribute) + kind + shown(name, value) +
                " is not " + forms[attribute.getDataType()].words);
        }
    }

    void add(const std::string& fault) {
        if (std::find(m_faults.begin(), m_faults.end(), fault) == m_faults.end()) {
            m_faults.push_back(fault);
        }
    }

    const zvObjectMapping& m_mapping;
    std::vector<std::string> m_faults;
};

}  // namespace

bool zvValueCheck::isValid(const zvString& text, zvDataTypeEnum type) {
    return forms[type].accepts(zvCharString(text).data());
}

std::vector<std::string> zvValueCheck::faultsOf(const zvObjectMapping& mapping) {
    Check check(mapping);
    for (const zvCfgObject* const object : mapping.passedOver()) {
        check.checkRule(*object);
    }
    if (mapping.hasObject()) {
        check.checkObject(mapping.object());
    }
    return check.faults();
}
