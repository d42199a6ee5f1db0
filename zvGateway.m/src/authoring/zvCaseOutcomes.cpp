#include "zvCaseOutcomes.h"

#include "zvCaseRun.h"
#include "zvConsole.h"

zvCaseOutcomes::zvCaseOutcomes(const std::vector<std::string>& files) {
    for (const std::string& name : files) {
        m_files.push_back(zvCaseFile::read(name));
        m_files.back().requireFaultless();
    }
}

std::vector<zvCaseOutcome> zvCaseOutcomes::run(zvCoverage& coverage) const {
    std::vector<zvCaseOutcome> outcomes;
    for (const zvCaseFile& file : m_files) {
        for (const zvCase& test : file.cases) {
            std::vector<std::string> texts;
            for (const zvCaseDifference& difference : zvCaseRun::run(test, coverage).differences) {
                texts.push_back(difference.text());
            }
            outcomes.push_back(
                {"case \"" + zvCaseRun::nameOf(test) + "\" of " + zvConsole::printable(file.name.c_str()),
                 test.line, texts.empty(),
                 texts.empty() ? "passed" : "failed: " + zvConsole::joined(texts, "; ")});
        }
    }
    return outcomes;
}
