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

bool isError(const zvFinding& finding) { return finding.severity == zvFinding::Severity::error; }
bool isBreak(const zvFinding& finding) { return finding.kind == zvFindingKind::notWellFormed; }

template <class Predicate>
const zvFinding* lastOf(const std::vector<zvFinding>& findings, Predicate predicate) {
    const auto found = std::find_if(findings.rbegin(), findings.rend(), predicate);
    return found == findings.rend() ? nullptr : &*found;
}

std::string textOf(const zvFinding* finding) { return finding == nullptr ? "" : textOf(*finding); }

}  // namespace

std::string zvFindingList::lastError() const { return textOf(lastOf(m_findings, isError)); }

std::string zvFindingList::brokenDocument() const { return textOf(lastOf(m_findings, isBreak)); }

const zvFinding* zvFindingList::decisive() const {
    const zvFinding* const broken = lastOf(m_findings, isBreak);
    return broken != nullptr ? broken : lastOf(m_findings, isError);
}
