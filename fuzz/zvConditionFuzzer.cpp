// Parses, evaluates and writes a condition string, and checks the round trip.
#include <algorithm>
#include <optional>

#include "zvCndContext.h"
#include "zvCndParsingUtils.h"
#include "zvException.h"
#include "zvFuzzSupport.h"

using zvFuzz::require;

namespace {

zvCndContext contextOfAllTypes() {
    zvCndContext context;
    const auto add = [&context](const char* name, const char* text, zvDataTypeEnum type) {
        zvAttribute attribute(name, zvValue(text, type, 3));
        context.addAttribute(attribute);
    };
    add("t", "text", zvDataTypeString);
    add("n", "12", zvDataTypeString);
    add("i", "12", zvDataTypeInteger);
    add("f", "1.5", zvDataTypeFloat);
    add("b", "1", zvDataTypeBoolean);
    add("d", "21/05/2011::11-12-22", zvDataTypeDate);
    add("x", "", zvDataTypeNone);
    return context;
}

// The result; nothing if the values cannot be compared.
std::optional<bool> truthOf(const zvCndCondition& condition) {
    static const zvCndContext context = contextOfAllTypes();
    try {
        return condition->evaluate(context);
    } catch (const zvException&) {
        return {};
    }
}

std::optional<zvCndCondition> parsed(const zvString& text) {
    try {
        return zvCndParsingUtils::createConditionStructure(text);
    } catch (const zvException& refusal) {
        const int position = zvString::convertUnicodeToInt(refusal.getResult().getAdditionalInformation());
        require(!refusal.getResult().getMessage().empty(), "a refusal says why");
        require(position >= 0 && position <= text.size(), "a refusal points into the text");
        return {};
    }
}

// The characters without blanks and parentheses, sorted: each round trip reverses the children and may
// flatten chains of an operator.
std::u16string partsOf(const zvString& written) {
    std::u16string units = zvFuzz::unitsOf(written);
    const auto groups = [](char16_t unit) { return unit == u'(' || unit == u')' || unit == u' '; };
    units.erase(std::remove_if(units.begin(), units.end(), groups), units.end());
    std::sort(units.begin(), units.end());
    return units;
}

zvCndCondition parsedAgain(const zvString& text) {
    const std::optional<zvCndCondition> condition = parsed(text);
    require(condition.has_value(), "what was written can be parsed");
    return *condition;
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    const zvString text = zvFuzz::textOf(input);
    const std::optional<zvCndCondition> condition = parsed(text);
    if (!condition) {
        return;
    }
    const std::optional<bool> truth = truthOf(*condition);
    require(truth == truthOf(*condition), "evaluation changes nothing");
    const zvString written = zvCndParsingUtils::createConditionString(*condition);
    const zvCndCondition again = parsedAgain(written);
    if (text.find("\\") != -1) {
        return;  // a backslash or a quote after a backslash does not round-trip
    }
    require(partsOf(written) == partsOf(zvCndParsingUtils::createConditionString(again)),
            "a condition comes back with all its parts");
    const std::optional<bool> truthAgain = truthOf(again);
    require(!truth || !truthAgain || *truth == *truthAgain, "a condition and its text hold alike");
}
