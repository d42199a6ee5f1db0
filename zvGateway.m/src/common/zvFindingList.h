#ifndef ZV_FINDING_LIST_H
#define ZV_FINDING_LIST_H

#include <string>
#include <vector>

#include "zvFinding.h"

/// Keeps the findings of a reader, in their order.
class zvFindingList : public zvFindingSink {
public:
    void report(const zvFinding& finding) override { m_findings.push_back(finding); }

    const std::vector<zvFinding>& findings() const { return m_findings; }
    /// The last error for people, with its place; empty without one.
    std::string lastError() const;
    /// The same for a document that stops in the middle: the library takes it as far as it was read, but an
    /// event must not lose the rest of its files or of its configuration that way. Empty for a whole one.
    std::string brokenDocument() const;

    /// The finding that keeps a document from being read to its end: where it is broken, or else the last
    /// error. Null without one.
    const zvFinding* decisive() const;

private:
    std::vector<zvFinding> m_findings;
};

#endif
