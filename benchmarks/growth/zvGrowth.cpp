// usage: zvGrowth WORK COUNT    does the work on COUNT items, inside the function zvGrowthWork
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCndParsingUtils.h"
#include "zvEventArguments.h"
#include "zvFormBody.h"
#include "zvICndListCondition.h"
#include "zvPlatform.h"
#include "zvStringTokeniser.h"
#include "zvXERCESDOMNODEList.h"
#include "zvXMLParser.h"

namespace {

std::string repeated(int count, const char* piece) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        for (const char* c = piece; *c != '\0'; ++c) {
            *c == '#' ? text.append(number) : text.append(1, *c);
        }
    }
    return text;
}

std::string document(int count) {
    return "<All>" + repeated(count, "<Item Number='#'>text #</Item>") + "</All>";
}

std::string configuration(int count) {
    return "<CustomizationConfig><ObjectConfig>" +
           repeated(count,
                    "<Object LocalCustType='T#'><Attribute LocalName='a#' RemoteName='b#'/>"
                    "<MappingRule>{state} = 'RELEASED'</MappingRule></Object>") +
           "</ObjectConfig></CustomizationConfig>";
}

// Each returns the number of items that it has processed.
int tokenise(const std::string& input) {
    zvStringTokeniser tokeniser(input.c_str(), ',');
    tokeniser.tokenise();
    return tokeniser.getNumTokens();
}

int parseCondition(const std::string& input) {
    const zvCndCondition condition =
        zvCndParsingUtils::createConditionStructure((input + "{z} = 'z'").c_str());
    return static_cast<zvICndAndCondition*>(condition.operator->())->numConditions() - 1;
}

int loadConfiguration(const std::string& input) {
    zvCfgMgrXmlParser().parse(input.c_str(), false);
    const int count = zvCfgConfigManager::getCfgConfigManager()->numObjects();
    zvCfgConfigManager::destroyCfgConfigManager();
    return count;
}

int walk(const std::string& input) {
    zvXMLParser parser(input.c_str(), false);
    int count = 0;
    zvString text;
    for (bool there = parser.getFirstChild(text); there; there = parser.getNextSibling(text)) {
        count += parser.getAttribute("Number", text) && parser.getMemberValue(text) ? 1 : 0;
    }
    const std::unique_ptr<zvXERCESDOMNODEList> items(
        parser.getChildElementsByTagName(parser.getRootElement(), "Item"));
    return items->numDOMNode() == count ? count : -1;
}

int composeBody(const std::string& input) {
    zvEventArguments* const arguments = zvEventArguments::parseEventArguments(zvString(input.c_str()));
    const int count = zvFormBody(*arguments).sent().empty() ? -1 : arguments->numEventArguments();
    arguments->destroy();
    return count;
}

struct Work {
    const char* name;
    std::string (*input)(int count);
    int (*run)(const std::string& input);
};

const Work works[] = {
    {"tokenise", [](int count) { return repeated(count, "token#,"); }, tokenise},
    {"condition", [](int count) { return repeated(count, "{a#} = 'b#' AND "); }, parseCondition},
    {"configuration", configuration, loadConfiguration},
    {"xml", document, walk},
    {"body", [](int count) { return repeated(count, "\"Key#=value #\" "); }, composeBody},
};

}  // namespace

// valgrind counts the instructions inside this function, which must not be inlined.
extern "C" __attribute__((noinline)) int zvGrowthWork(int (*run)(const std::string&),
                                                      const std::string& input) {
    return run(input);
}

int main(int argc, char** argv) {
    zvPlatform::adoptUserLocale();
    for (const Work& work : works) {
        if (argc == 3 && std::strcmp(work.name, argv[1]) == 0) {
            const int count = std::atoi(argv[2]);
            const int done = zvGrowthWork(work.run, work.input(count));
            if (done != count) {
                std::fprintf(stderr, "%d items of %d came out of it\n", done, count);
            }
            return done == count ? EXIT_SUCCESS : EXIT_FAILURE;
        }
    }
    std::fputs("usage: zvGrowth WORK COUNT\n", stderr);
    return EXIT_FAILURE;
}
