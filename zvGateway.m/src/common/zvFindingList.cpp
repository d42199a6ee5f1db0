#include "zvFindingList.h"

#include <algorithm>

#include "zvConsole.h"

namespace {

std::string textOf(const zvFinding& finding) {
    std::string place;
    if (finding.position.line > 0) {
        place = "line " + std::to_string(finding.position.line) + ", column " +
                std::to_string(finding.position.column) + ": ";
    }
    const std::string object = zvConsole::printable(finding.object);
    return place + object + (object.empty() ? "" : ": ") + zvConsole::printable(finding.text);
}

template <class Predicate>
std::string lastOf(const std::vector<zvFinding>& findings, Predicate predicate) {
    const auto found = std::find_if(findings.rbegin(), findings.rend(), predicate);
    return found == findings.rend() ? "" : textOf(*found);
}

}  // namespace

std::string zvFindingList::lastError() const {
    return lastOf(m_findings,
                  [](const zvFinding& finding) { return finding.severity == zvFinding::Severity::error; });
}

std::string zvFindingList::brokenDocument() const {
    return lastOf(m_findings,
                  [](const zvFinding& finding) { return finding.kind == zvFindingKind::notWellFormed; });
}
