#include "zvEvaluateCommand.h"

#include <cstdio>

#include "zvCndParsingUtils.h"
#include "zvConditionExplanation.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvProcess.h"
#include "zvSecrets.h"
#include "zvTypedValue.h"

namespace {

zvProgramFailure attributeFailure(const std::string& argument, const std::string& reason) {
    return {zvExitCode::usage, "attribute", zvConsole::printable(argument.c_str()), reason};
}

zvAttribute attributeOf(const std::string& argument) {
    const std::size_t separator = argument.find('=');
    if (separator == std::string::npos || separator == 0) {
        throw attributeFailure(argument, "it is not of the form name=value");
    }
    std::string name = argument.substr(0, separator);
    zvDataTypeEnum type = zvDataTypeString;
    const std::size_t colon = name.rfind(':');
    if (colon != std::string::npos) {
        const std::u16string word(name.begin() + static_cast<std::ptrdiff_t>(colon) + 1, name.end());
        type = zvDataTypeWords::typeOf(word);
        if (type == zvDataTypeNone) {
            throw attributeFailure(argument, "the type is none of Integer, Float, String, Date and Boolean");
        }
        name.resize(colon);
    }
    return {name.c_str(), toTypedValue(argument.c_str() + separator + 1, type)};
}

// The part of the condition around the fault, with a caret under it.
void printFault(const zvString& condition, int position) {
    constexpr int context = 60;
    const int begin = position > context ? position - context : 0;
    const std::string before = zvConsole::printable(condition.substr(begin, position - begin));
    const std::string after = zvConsole::printable(condition.substr(position, context));
    const int columns = condition.substr(begin, position - begin).size();
    const std::string indent(static_cast<std::size_t>(columns), ' ');
    zvProcess::write(stderr, "  " + before + after + "\n  " + indent + "^\n");
}

zvExitCode refuse(const zvString& condition, const zvException& exception) {
    const zvResult result = exception.getResult();
    const zvString position = result.getAdditionalInformation();
    zvConsole::complain("condition: " + zvConsole::printable(result.getMessage()));
    if (!position.empty() && zvSecrets::keyIn(condition) == nullptr) {
        printFault(condition, zvString::convertUnicodeToInt(position));
    }
    return zvExitCode::usage;
}

}  // namespace

zvExitCode zvEvaluateCommand::run() const {
    zvCndContext context;
    for (const std::string& argument : attributes) {
        zvAttribute attribute = attributeOf(argument);
        if (!context.addAttribute(attribute)) {
            throw attributeFailure(argument, "the name is given twice");
        }
    }
    const zvString text(condition.c_str());
    try {
        const bool outcome = evaluate(zvCndParsingUtils::createConditionStructure(text), context);
        zvConsole::write(outcome ? "true\n" : "false\n");
        return zvExitCode::success;
    } catch (const zvException& exception) {
        return refuse(text, exception);
    }
}

bool zvEvaluateCommand::evaluate(const zvCndCondition& parsed, const zvCndContext& context) const {
    if (!explain) {
        return parsed->evaluate(context);
    }
    const zvConditionExplanation explanation(parsed, context);
    for (const std::string& line : explanation.lines()) {
        zvConsole::write(line + "\n");
    }
    return explanation.outcome();
}
