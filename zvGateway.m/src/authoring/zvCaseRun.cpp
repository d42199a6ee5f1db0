#include "zvCaseRun.h"

#include <algorithm>

#include "zvCfgTransitionPath.h"
#include "zvCharString.h"
#include "zvCndParsingUtils.h"
#include "zvConditionExplanation.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvException.h"
#include "zvLifecycleWay.h"
#include "zvMappingReport.h"
#include "zvObjectAttribute.h"

using zvConsole::printable;

namespace {

std::string quoted(const zvString& text) { return '"' + printable(text) + '"'; }

std::string listed(const std::vector<zvString>& texts) {
    std::vector<std::string> shown;
    shown.reserve(texts.size());
    for (const zvString& text : texts) {
        shown.push_back(printable(text));
    }
    return texts.empty() ? "nothing" : zvConsole::joined(shown, ", ");
}

// The comparison of a refusal with what a case says of it; true for a case that needs none and gets none.
bool agrees(const std::optional<zvString>& wanted, const std::string& refusal, const std::string& otherwise,
            const std::string& got, zvCaseResult& result) {
    if (!wanted.has_value()) {
        if (!refusal.empty()) {
            result.differences.push_back({"outcome", otherwise, "refused: " + refusal});
        }
        return refusal.empty();
    }
    const std::string text = printable(*wanted);
    if (refusal.empty()) {
        result.differences.push_back({"outcome", "refused: " + text, got});
    } else if (refusal.find(text) == std::string::npos) {
        result.differences.push_back({"reason", text, refusal});
    }
    return false;
}

class ObjectRun {
public:
    ObjectRun(const zvObjectCase& test, zvCoverage& coverage) : m_test(test), m_trial(test.object) {
        coverage.note(m_trial, test.object.isLocal());
    }

    zvCaseResult run() {
        const zvObjectMapping& mapping = m_trial.mapping();
        const std::string got = mapping.hasObject() ? quoted(typeOf(mapping.object())) : "";
        if (agrees(m_test.refused, m_trial.refusal(), quoted(m_test.type), got, m_result)) {
            compare(got);
        }
        if (!m_result.isPassed()) {
            explain();
        }
        return std::move(m_result);
    }

private:
    zvString typeOf(const zvCfgObject& object) const {
        return m_test.object.isLocal() ? object.getRemoteCustomType() : object.getLocalCustomType();
    }

    void add(const std::string& what, const std::string& expected, const std::string& got) {
        m_result.differences.push_back({what, expected, got});
    }

    // Another object's attributes say nothing.
    void compare(const std::string& got) {
        if (quoted(m_test.type) != got) {
            add("type", quoted(m_test.type), got);
            return;
        }
        compareAttributes();
        compareLeftOut();
    }

    static std::string shown(const zvString& name, const zvString& value, zvDataTypeEnum type,
                             bool isDefault) {
        const std::string word =
            type == zvDataTypeNone ? "" : zvCharString(zvDataTypeWords::wordOf(type).data()).data();
        return quoted(zvSecrets::maskedValue(name, zvObjectAttribute::shownValue(name, value))) +
               (word.empty() ? "" : " (" + word + ")") + (isDefault ? " (default)" : "");
    }

    void compareAttributes() {
        std::size_t found = 0;
        for (const zvObjectMapping::Attribute& got : m_trial.mapping().attributes()) {
            const auto wanted = m_test.attributes.find(got.to);
            if (wanted == m_test.attributes.end()) {
                add(printable(got.to), "nothing", shown(got.to, got.value, got.type, got.isDefault));
                continue;
            }
            ++found;
            compare(wanted->first, wanted->second, got);
        }
        if (found < m_test.attributes.size()) {
            addMissing();
        }
    }

    void compare(const zvString& name, const zvExpectedAttribute& wanted,
                 const zvObjectMapping::Attribute& got) {
        const bool hasType = wanted.type != zvDataTypeNone;
        if (wanted.value != got.value || wanted.isDefault != got.isDefault ||
            (hasType && wanted.type != got.type)) {
            add(printable(name), shown(name, wanted.value, wanted.type, wanted.isDefault),
                shown(name, got.value, hasType ? got.type : zvDataTypeNone, got.isDefault));
        }
    }

    void addMissing() {
        const std::vector<zvObjectMapping::Attribute>& got = m_trial.mapping().attributes();
        for (const auto& [name, wanted] : m_test.attributes) {
            const bool isThere = std::any_of(got.begin(), got.end(), [&name = name](const auto& attribute) {
                return attribute.to == name;
            });
            if (!isThere) {
                add(printable(name), shown(name, wanted.value, wanted.type, wanted.isDefault), "nothing");
            }
        }
    }

    void compareLeftOut() {
        std::vector<zvString> wanted = m_test.leftOut;
        std::sort(wanted.begin(), wanted.end());
        if (wanted != m_trial.mapping().unmapped()) {
            add("left-out", listed(wanted), listed(m_trial.mapping().unmapped()));
        }
    }

    void explain() {
        for (const auto& [name, text] : zvMappingReport(m_trial).candidates()) {
            m_result.evaluation.emplace_back(name.empty() ? " " : name).append(" ").append(text);
        }
    }

    const zvObjectCase& m_test;
    zvMappingTrial m_trial;
    zvCaseResult m_result;
};

zvCaseResult run(const zvObjectCase& test, zvCoverage& coverage) { return ObjectRun(test, coverage).run(); }

zvCaseResult run(const zvConditionCase& test, zvCoverage&) {
    zvCaseResult result;
    zvCndContext context;
    for (zvAttribute attribute : test.attributes) {
        context.addAttribute(attribute);
    }
    const char* const wanted = test.holds ? "true" : "false";
    try {
        const zvConditionExplanation explanation(zvCndParsingUtils::createConditionStructure(test.condition),
                                                 context);
        const char* const got = explanation.outcome() ? "true" : "false";
        if (agrees(test.refused, "", wanted, got, result) && explanation.outcome() != test.holds) {
            result.differences.push_back({"outcome", wanted, got});
        }
        if (!result.isPassed()) {
            result.evaluation = explanation.lines();
        }
    } catch (const zvException& exception) {
        agrees(test.refused, printable(exception.getResult().getMessage()), wanted, "", result);
    }
    return result;
}

zvString stepOf(const zvCfgTransitionPath& path, int i, bool isRemote) {
    const zvCfgLcmState& state = *path.getStateAt(i + 1);
    return zvCfgTransition::typeName(path.getTransitionAt(i)->getType()) + " " +
           (isRemote ? state.remoteName() : state.localName());
}

zvCaseResult run(const zvLifecycleCase& test, zvCoverage& coverage) {
    zvCaseResult result;
    if (zvCfgConfigManager::getCfgConfigManager()->getLifecycle(test.objectType) == nullptr) {
        result.differences.push_back({"lifecycle", quoted(test.objectType), "none of this type"});
        return result;
    }
    const zvLifecycleWay way({test.objectType}, test.from, test.to);
    std::vector<zvString> got;
    bool isSame = way.exists() == test.way.has_value();
    for (int i = 0; way.exists() && i < way.path().size(); ++i) {
        coverage.note(*way.path().getTransitionAt(i));
        got.push_back(stepOf(way.path(), i, false));
        const auto at = static_cast<std::size_t>(i);
        isSame = isSame && at < test.way->size() &&
                 (test.way->at(at) == got.back() || test.way->at(at) == stepOf(way.path(), i, true));
    }
    if (!isSame || (test.way.has_value() && got.size() != test.way->size())) {
        result.differences.push_back({"way", test.way.has_value() ? "[" + listed(*test.way) + "]" : "none",
                                      way.exists() ? "[" + listed(got) + "]" : "none"});
    }
    return result;
}

const zvCfgFile* findFile(const zvString& type) {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    const zvCfgFileList* files = configuration.getFilesByLocalType(type);
    files = files == nullptr ? configuration.getFilesByRemoteType(type) : files;
    return files == nullptr ? nullptr : files->getFile(0);
}

zvCaseResult run(const zvFileCase& test, zvCoverage& coverage) {
    zvCaseResult result;
    const zvCfgFile* const file = findFile(test.objectType);
    if (file == nullptr) {
        result.differences.push_back({"of", quoted(test.objectType), "no file object of this type"});
        return result;
    }
    const zvCfgFileExtension* const found = file->getFileExtension(test.extension);
    if (found != nullptr) {
        coverage.note(*found);
    }
    const auto compare = [&result](const char* what, bool wanted, bool got) {
        if (wanted != got) {
            result.differences.push_back({what, wanted ? "true" : "false", got ? "true" : "false"});
        }
    };
    compare("import", test.isImported, found != nullptr && found->isImportAllowed());
    compare("export", test.isExported, found != nullptr && found->isExportAllowed());
    const char* const mode = found == nullptr                                  ? "none"
                             : found->getTransferMode() == zvTransferModeAscii ? "ASCII"
                                                                               : "BINARY";
    if (!test.mode.empty() && test.mode != mode) {
        result.differences.push_back({"mode", printable(test.mode), mode});
    }
    return result;
}

std::string nameOf(const zvObjectCase& test) {
    return printable(test.object.type()) + " from the " + (test.object.isLocal() ? "local" : "remote") +
           " system";
}
std::string nameOf(const zvConditionCase& test) { return printable(test.condition); }
std::string nameOf(const zvLifecycleCase& test) {
    return printable(test.objectType) + " from " + printable(test.from) + " to " + printable(test.to);
}
std::string nameOf(const zvFileCase& test) {
    return printable(test.extension) + " of " + printable(test.objectType);
}

}  // namespace

zvCaseResult zvCaseRun::run(const zvCase& test, zvCoverage& coverage) {
    return std::visit([&coverage](const auto& content) { return ::run(content, coverage); }, test.content);
}

std::string zvCaseRun::nameOf(const zvCase& test) {
    return test.name.empty() ? std::visit([](const auto& content) { return ::nameOf(content); }, test.content)
                             : printable(test.name);
}
