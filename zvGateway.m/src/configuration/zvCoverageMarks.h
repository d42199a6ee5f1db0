#ifndef ZV_COVERAGE_MARKS_H
#define ZV_COVERAGE_MARKS_H

#include <string>
#include <unordered_map>
#include <vector>

#include "zvCfgFileExtension.h"
#include "zvCfgObject.h"
#include "zvCfgTransition.h"
#include "zvCoverageSummary.h"

/// What a page says, in its HTML, of what no case reaches, at the place itself. Every mark has the words "not
/// reached", by which a search finds it. Nothing for what is reached.
class zvCoverageMarks {
public:
    /// For a page without cases, which has no marks.
    zvCoverageMarks() = default;
    /// `coverage` must live longer.
    explicit zvCoverageMarks(const zvCoverageSummary& coverage);

    /// For the heading of an object.
    std::string ofObject(const zvCfgObject& object) const;
    /// The tree of the object's mapping rule with the outcomes that its parts never have, as a row of a list.
    std::string ofRule(const zvCfgObject& object) const;
    std::string ofAttribute(const zvCfgAttribute& attribute) const;
    std::string ofExtension(const zvCfgFileExtension& extension) const { return ofWhole(&extension); }
    std::string ofTransition(const zvCfgTransition& transition) const { return ofWhole(&transition); }

private:
    using Gaps = std::vector<const zvCoverageSummary::Gap*>;

    const Gaps& gapsOf(const void* place) const;
    std::string ofWhole(const void* place) const;

    std::unordered_map<const void*, Gaps> m_gaps;
};

#endif
