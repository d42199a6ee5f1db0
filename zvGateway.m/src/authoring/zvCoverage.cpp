#include "zvCoverage.h"

#include <algorithm>
#include <map>
#include <utility>

#include "zvCfgDescription.h"
#include "zvCndParsingUtils.h"
#include "zvConditionExplanation.h"
#include "zvConsole.h"
#include "zvException.h"

using zvConsole::printable;

namespace {

constexpr const char* systems[] = {"local", "remote"};

std::string quoted(const zvString& text) { return '"' + printable(text) + '"'; }

std::string nameOf(const zvCfgObject& object) { return printable(zvCfgDescription::ofObject(object)); }

}  // namespace

zvCoverage::Trace& zvCoverage::traceOf(const zvCfgObject& object) {
    Trace& trace = m_objects[&object];
    const auto count = static_cast<std::size_t>(object.numAttributes());
    if (trace.carried.size() < count) {
        trace.carried.resize(count);
        trace.defaulted.resize(count);
    }
    return trace;
}

void zvCoverage::noteRule(const zvCfgObject& object, const zvObjectMapping& mapping) {
    const zvCndCondition rule = object.getMappingRule();
    if (rule.IsNull()) {
        return;
    }
    try {
        const zvConditionExplanation explanation(rule, mapping.contextFor(object));
        Trace& trace = traceOf(object);
        trace.outcomes.resize(explanation.nodes().size());
        for (std::size_t i = 0; i < explanation.nodes().size(); ++i) {
            if (const std::optional<bool> outcome = explanation.nodes()[i].outcome) {
                trace.outcomes[i][*outcome ? 1 : 0] = true;
            }
        }
    } catch (const zvException&) {
        // It ended the mapping, which is the case's outcome.
    }
}

void zvCoverage::note(const zvMappingTrial& trial, bool isLocal) {
    const zvObjectMapping& mapping = trial.mapping();
    for (const zvCfgObject* const object : mapping.passedOver()) {
        noteRule(*object, mapping);
    }
    if (!mapping.hasObject()) {
        return;
    }
    const zvCfgObject& object = mapping.object();
    noteRule(object, mapping);
    Trace& trace = traceOf(object);
    const std::size_t direction = isLocal ? 0 : 1;
    trace.taken[direction] = true;
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        if (mapping.targetName(attribute).empty()) {
            continue;
        }
        const auto at = static_cast<std::size_t>(i);
        if (mapping.findText(mapping.sourceName(attribute)) != nullptr) {
            trace.carried[at][direction] = true;
        } else if (attribute.isDefaultValueSpecified()) {
            trace.defaulted[at] = true;
        }
    }
}

/// Goes through the configuration and compares it with what was noted.
class zvCoverage::Counting {
public:
    explicit Counting(const zvCoverage& coverage) : m_coverage(coverage) {}

    zvCoverageSummary summary() {
        const zvCfgConfigManager& configuration = m_coverage.m_configuration;
        for (int i = 0; i < configuration.numObjects(); ++i) {
            count(*configuration.getObjectAt(i));
        }
        for (int i = 0; i < configuration.numFiles(); ++i) {
            count(*configuration.getFileAt(i));
        }
        for (int i = 0; i < configuration.numLifecycles(); ++i) {
            count(*configuration.getLifecycleAt(i));
        }
        return {{m_objects, m_rules, m_branches, m_attributes, m_defaults, m_extensions, m_transitions},
                std::move(m_gaps)};
    }

private:
    using Gap = zvCoverageSummary::Gap;
    using Count = zvCoverageSummary::Count;

    void add(Count& count, bool isReached, Gap gap) {
        ++count.total;
        if (isReached) {
            ++count.reached;
        } else {
            m_gaps.push_back(std::move(gap));
        }
    }

    void count(const zvCfgObject& object) {
        static const Trace none;
        const auto found = m_coverage.m_objects.find(&object);
        const Trace& trace = found == m_coverage.m_objects.end() ? none : found->second;
        const Directions directions = reachable(object);
        for (std::size_t i = 0; i < directions.size(); ++i) {
            if (directions[i]) {
                add(m_objects, trace.taken[i],
                    {object.getPosition().line, nameOf(object),
                     std::string("from the ") + systems[i] + " system", &object, std::nullopt});
            }
        }
        countRule(object, trace);
        countAttributes(object, trace, directions);
    }

    // In a direction an object is out of reach behind one of the same type without a rule. From the local
    // system the remote type chooses, too.
    Directions reachable(const zvCfgObject& object) {
        const zvString& local = object.getLocalCustomType();
        const zvString& remote = object.getRemoteCustomType();
        const std::pair<zvString, zvString> both(local, remote);
        const Directions directions{!local.empty() && m_alwaysLocal.count(both) == 0,
                                    !remote.empty() && m_alwaysRemote.count(remote) == 0};
        if (object.getMappingRule().IsNull()) {
            m_alwaysLocal.insert(both);
            m_alwaysRemote.insert(remote);
        }
        return directions;
    }

    void countRule(const zvCfgObject& object, const Trace& trace) {
        const zvCndCondition rule = object.getMappingRule();
        if (rule.IsNull()) {
            return;
        }
        const zvCndContext nothing;
        const zvConditionExplanation parts(rule, nothing);
        std::vector<bool> isOperand;  // by depth: whether the part above is an AND or an OR
        for (std::size_t i = 0; i < parts.nodes().size(); ++i) {
            const zvConditionExplanation::Node& node = parts.nodes()[i];
            const zvCndConditionTypeEnum type = node.condition->getConditionType();
            isOperand.resize(node.depth + 1);
            if (node.depth == 0 || isOperand[node.depth]) {
                countPart(object, i, node, i < trace.outcomes.size() ? trace.outcomes[i] : Directions{});
            }
            isOperand.push_back(type == zvCndConditionAnd || type == zvCndConditionOr);
        }
    }

    void countPart(const zvCfgObject& object, std::size_t number, const zvConditionExplanation::Node& node,
                   const std::array<bool, 2>& outcomes) {
        const bool isRule = node.depth == 0;
        for (const bool outcome : {false, true}) {
            Count& count = isRule ? m_rules : m_branches;
            ++count.total;
            if (outcomes[outcome ? 1 : 0]) {
                ++count.reached;
                continue;
            }
            // Made for a gap alone: the text of a large part is long.
            const std::string part =
                isRule ? "the mapping rule"
                       : printable(zvCndParsingUtils::createConditionString(node.condition));
            m_gaps.push_back({object.getPosition().line, nameOf(object),
                              part + " is never " + (outcome ? "true" : "false"), &object,
                              zvCoverageSummary::MissingOutcome{number, outcome}});
        }
    }

    void countAttributes(const zvCfgObject& object, const Trace& trace, const Directions& directions) {
        for (int i = 0; i < object.numAttributes(); ++i) {
            const zvCfgAttribute& attribute = *object.getAttribute(i);
            const auto at = static_cast<std::size_t>(i);
            const bool isTraced = at < trace.carried.size();
            const std::string name = nameOf(object) + ", " + quoted(attribute.anyName());
            const int line = attribute.getPosition().line;
            const bool isSent = !attribute.localName().empty() && !attribute.remoteName().empty();
            for (std::size_t d = 0; isSent && d < directions.size(); ++d) {
                if (directions[d]) {
                    add(m_attributes, isTraced && trace.carried[at][d],
                        {line, name, std::string("no value from the ") + systems[d] + " system", &attribute,
                         std::nullopt});
                }
            }
            if (attribute.isDefaultValueSpecified() && (directions[0] || directions[1])) {
                add(m_defaults, isTraced && trace.defaulted[at],
                    {line, name, "the default", &attribute, std::nullopt});
            }
        }
    }

    void count(const zvCfgFile& file) {
        file.forEachFileExtension([&](const zvCfgFileExtension& extension) {
            add(m_extensions, m_coverage.m_extensions.count(&extension) > 0,
                {file.getPosition().line, nameOf(file), "extension " + quoted(extension.getName()),
                 &extension, std::nullopt});
        });
    }

    void count(const zvCfgLcmGraph& lifecycle) {
        for (int i = 0; i < lifecycle.numStates(); ++i) {
            const zvCfgLcmState& state = *lifecycle.getStateAt(i);
            for (int k = 0; k < state.numOutgoingTransitions(); ++k) {
                const zvCfgTransition& transition = *state.getOutgoingTransition(k);
                add(m_transitions, m_coverage.m_transitions.count(&transition) > 0,
                    {state.getPosition().line,
                     printable(zvCfgDescription::ofLifecycle(lifecycle.getObjectType())),
                     printable(zvCfgTransition::typeName(transition.getType())) + " from " +
                         quoted(state.localName()) + " to " + quoted(transition.toState()),
                     &transition, std::nullopt});
            }
        }
    }

    const zvCoverage& m_coverage;
    std::set<std::pair<zvString, zvString>> m_alwaysLocal;
    std::set<zvString> m_alwaysRemote;
    Count m_objects{"objects"};
    Count m_rules{"rules"};
    Count m_branches{"branches"};
    Count m_attributes{"attributes"};
    Count m_defaults{"defaults"};
    Count m_extensions{"file types"};
    Count m_transitions{"transitions"};
    std::vector<zvCoverageSummary::Gap> m_gaps;
};

zvCoverageSummary zvCoverage::summary() const { return Counting(*this).summary(); }
