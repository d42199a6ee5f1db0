#ifndef ZV_COVERAGE_H
#define ZV_COVERAGE_H

#include <array>
#include <set>
#include <unordered_map>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgTransition.h"
#include "zvCoverageSummary.h"
#include "zvMappingTrial.h"

/// Which parts of a configuration the cases have reached.
class zvCoverage {
public:
    /// The manager must live longer.
    explicit zvCoverage(const zvCfgConfigManager& configuration) : m_configuration(configuration) {}

    void note(const zvMappingTrial& trial, bool isLocal);
    void note(const zvCfgTransition& transition) { m_transitions.insert(&transition); }
    void note(const zvCfgFileExtension& extension) { m_extensions.insert(&extension); }

    zvCoverageSummary summary() const;

private:
    /// By direction: from the local system, from the remote one.
    using Directions = std::array<bool, 2>;
    struct Trace {
        Directions taken{};
        /// Of the rule's parts, in the order of the explanation, whether they were false and true once.
        std::vector<std::array<bool, 2>> outcomes;
        /// Of the attributes, in their order.
        std::vector<Directions> carried;
        std::vector<bool> defaulted;
    };
    class Counting;

    void noteRule(const zvCfgObject& object, const zvObjectMapping& mapping);
    Trace& traceOf(const zvCfgObject& object);

    const zvCfgConfigManager& m_configuration;
    std::unordered_map<const zvCfgObject*, Trace> m_objects;
    std::set<const zvCfgTransition*> m_transitions;
    std::set<const zvCfgFileExtension*> m_extensions;
};

#endif
