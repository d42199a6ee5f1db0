#ifndef ZV_CONFIGURATION_COMPARISON_H
#define ZV_CONFIGURATION_COMPARISON_H

#include <cstddef>
#include <vector>

#include "zvCaseOutcome.h"
#include "zvComparedConfiguration.h"
#include "zvDifference.h"
#include "zvPartMatching.h"

/// What differs in meaning between two configurations. The order of parts counts only where it decides.
class zvConfigurationComparison {
public:
    zvConfigurationComparison(const zvComparedConfiguration& before, const zvComparedConfiguration& after);

    /// Takes the cases, the same in both lists, whose outcome is another one.
    void addOutcomes(const std::vector<zvCaseOutcome>& before, const std::vector<zvCaseOutcome>& after);

    /// In the order of the new configuration, with what was removed at the end; sections without a difference
    /// are left out.
    const std::vector<zvDifferenceSection>& sections() const { return m_sections; }
    /// The number of differences.
    std::size_t count() const;

private:
    using Parts = std::vector<zvComparedPart>;

    void compareObjects(const Parts& before, const Parts& after);
    void compareLifecycles(const Parts& before, const Parts& after);
    void add(zvDifferenceSection section);
    static std::vector<zvDifferenceGroup> groups(const Parts& before, const Parts& after,
                                                 const zvPartMatching& matching);

    std::vector<zvDifferenceSection> m_sections;
};

#endif
