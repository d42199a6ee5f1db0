#ifndef ZV_CASES_SECTION_H
#define ZV_CASES_SECTION_H

#include <string>

#include "zvPage.h"
#include "zvTestedCases.h"

/// The section of a page about cases: how much of the configuration they reach, and those that failed.
namespace zvCasesSection {

constexpr zvPage::Section section{"cases", "Cases"};

std::string html(const zvTestedCases& cases, zvPageAnchors& anchors);

}  // namespace zvCasesSection

#endif
