#include "zvConfigurationCheck.h"

#include <map>
#include <set>
#include <utility>

#include "zvCfgDescription.h"
#include "zvCheckKind.h"
#include "zvConditionTree.h"

namespace {

constexpr zvFinding::Severity error = zvFinding::Severity::error;
constexpr zvFinding::Severity warning = zvFinding::Severity::warning;

zvString quoted(const zvString& text) { return "\"" + text + "\""; }

// The states that transitions lead to from `first`, itself among them.
std::set<const zvCfgLcmState*> reachableFrom(const zvCfgLcmState* first, const zvCfgLcmGraph& lifecycle) {
    std::set<const zvCfgLcmState*> reached{first};
    std::vector<const zvCfgLcmState*> open{first};
    while (!open.empty()) {
        const zvCfgLcmState& state = *open.back();
        open.pop_back();
        for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
            const zvCfgLcmState* const target =
                lifecycle.getStateByLocalName(state.getOutgoingTransition(i)->toState());
            if (target != nullptr && reached.insert(target).second) {
                open.push_back(target);
            }
        }
    }
    return reached;
}

const zvCfgLcmState* firstOf(const zvCfgLcmGraph& lifecycle) {
    const zvCfgLcmState* first = lifecycle.getStateAt(0);
    for (int i = 1; i < lifecycle.numStates(); ++i) {
        const zvCfgLcmState* const state = lifecycle.getStateAt(i);
        if (state->getIndex() < first->getIndex()) {
            first = state;
        }
    }
    return first;
}

}  // namespace

// Objects without a mapping rule take every event of their types, and leave nothing to those after them.
class zvConfigurationCheck::Shadows {
public:
    // What shadows the object, which comes after all that were added.
    std::vector<zvFinding> of(const zvCfgObject& object) {
        const zvString local = object.getLocalCustomType();
        const zvString remote = object.getRemoteCustomType();
        std::vector<zvFinding> findings;
        if (local.empty() && remote.empty()) {
            return {{warning, zvCheckKind::untypedObject, zvCfgDescription::ofObject(object), zvString(),
                     object.getPosition(), "it has neither a local nor a remote type to be found by"}};
        }
        if (const zvCfgObject* const pair = find(m_byPair, {local, remote})) {
            return {finding(error, zvCheckKind::unreachableObject, object, "nothing reaches it", *pair)};
        }
        const zvCfgObject* const byLocal = local.empty() ? nullptr : find(m_byLocal, local);
        const zvCfgObject* const byRemote = remote.empty() ? nullptr : find(m_byRemote, remote);
        if (byLocal != nullptr) {
            findings.push_back(finding(warning, zvCheckKind::shadowedType, object,
                                       "it is not reached from its local type alone", *byLocal));
        }
        if (byRemote != nullptr) {
            findings.push_back(finding(warning, zvCheckKind::shadowedType, object,
                                       "it is not reached from its remote type alone", *byRemote));
        }
        return findings;
    }

    void add(const zvCfgObject& object) {
        if (object.getMappingRule().IsNull()) {
            const zvString local = object.getLocalCustomType();
            const zvString remote = object.getRemoteCustomType();
            m_byPair.try_emplace({local, remote}, &object);
            m_byLocal.try_emplace(local, &object);
            m_byRemote.try_emplace(remote, &object);
        }
    }

private:
    template <class Map>
    static const zvCfgObject* find(const Map& map, const typename Map::key_type& key) {
        const auto found = map.find(key);
        return found == map.end() ? nullptr : found->second;
    }

    static zvFinding finding(zvFinding::Severity severity, std::string_view kind, const zvCfgObject& object,
                             const char* what, const zvCfgObject& earlier) {
        const zvString line(earlier.getPosition().line);
        const zvString text = zvString(what) + ": the earlier " + zvCfgDescription::ofObject(earlier) +
                              " in line " + line + " has no mapping rule";
        return {severity, kind, zvCfgDescription::ofObject(object), zvString(), object.getPosition(), text};
    }

    std::map<std::pair<zvString, zvString>, const zvCfgObject*> m_byPair;
    std::map<zvString, const zvCfgObject*> m_byLocal;
    std::map<zvString, const zvCfgObject*> m_byRemote;
};

// How extensions are written, by their lower case form.
class zvConfigurationCheck::Spellings {
public:
    // How the extension was written before, if otherwise; null for a spelling that is known.
    const zvString* otherOf(const zvString& extension) {
        zvString lowered = extension;
        lowered.toLower();
        std::set<zvString>& spellings = m_spellings[lowered];
        const zvString* const other = spellings.empty() ? nullptr : &*spellings.begin();
        return spellings.insert(extension).second ? other : nullptr;
    }

private:
    std::map<zvString, std::set<zvString>> m_spellings;
};

zvConfigurationCheck::zvConfigurationCheck(const zvCfgConfigManager& configuration)
    : m_configuration(configuration) {
    checkObjects();
    checkFiles();
    for (int i = 0; i < configuration.numLifecycles(); ++i) {
        checkLifecycle(*configuration.getLifecycleAt(i));
    }
}

void zvConfigurationCheck::checkObjects() {
    Shadows shadows;
    for (int i = 0; i < m_configuration.numObjects(); ++i) {
        const zvCfgObject& object = *m_configuration.getObjectAt(i);
        for (zvFinding& finding : shadows.of(object)) {
            m_findings.push_back(std::move(finding));
        }
        shadows.add(object);
        checkAttributes(object);
        checkRule(object);
    }
}

void zvConfigurationCheck::checkAttributes(const zvCfgObject& object) {
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        if (attribute.getDataType() == zvDataTypeNone) {
            m_findings.push_back({error, zvCheckKind::unknownDataType, zvCfgDescription::ofObject(object),
                                  attribute.anyName(), attribute.getPosition(),
                                  "the DataType is none of Integer, Float, String, Date and Boolean"});
        }
    }
}

void zvConfigurationCheck::checkRule(const zvCfgObject& object) {
    for (const zvString& name : zvConditionTree::variablesOf(object.mappingRule())) {
        const zvCfgAttribute* const local = object.getAttributeByLocalName(name);
        const zvCfgAttribute* const remote = object.getAttributeByRemoteName(name);
        if (local != nullptr && remote != nullptr && local != remote) {
            m_findings.push_back(
                {warning, zvCheckKind::ambiguousName, zvCfgDescription::ofObject(object), name,
                 object.getPosition(),
                 "the mapping rule's name is the LocalName of one attribute and the RemoteName "
                 "of another: the first one with a value is compared"});
        }
    }
}

void zvConfigurationCheck::checkFiles() {
    Spellings everywhere;
    for (int i = 0; i < m_configuration.numFiles(); ++i) {
        checkFile(*m_configuration.getFileAt(i), everywhere);
    }
}

void zvConfigurationCheck::checkFile(const zvCfgFile& file, Spellings& everywhere) {
    Spellings inFile;
    file.forEachFileExtension([&](const zvCfgFileExtension& extension) {
        const auto warn = [&](std::string_view kind, const zvString& text) {
            m_findings.push_back({warning, kind, zvCfgDescription::ofObject(file), extension.getName(),
                                  extension.getPosition(), text});
        };
        if (!extension.isImportAllowed() && !extension.isExportAllowed()) {
            warn(zvCheckKind::unusedExtension, "neither import nor export is allowed");
        }
        const zvString* const here = inFile.otherOf(extension.getName());
        const zvString* const before = everywhere.otherOf(extension.getName());
        if (here != nullptr || before != nullptr) {
            warn(zvCheckKind::caseVariant,
                 "it differs in case only from " + quoted(here != nullptr ? *here : *before) +
                     (here != nullptr ? " of the same file object" : " of another file object"));
        }
    });
}

void zvConfigurationCheck::checkLifecycle(const zvCfgLcmGraph& lifecycle) {
    if (lifecycle.numStates() == 0) {
        return;
    }
    const zvCfgLcmState* const first = firstOf(lifecycle);
    const std::set<const zvCfgLcmState*> reached = reachableFrom(first, lifecycle);
    for (int i = 0; i < lifecycle.numStates(); ++i) {
        const zvCfgLcmState* const state = lifecycle.getStateAt(i);
        // A second state of a name is an error already.
        if (reached.count(state) == 0 && lifecycle.getStateByLocalName(state->localName()) == state) {
            m_findings.push_back(
                {warning, zvCheckKind::unreachableState,
                 zvCfgDescription::ofLifecycle(lifecycle.getObjectType()), state->localName(),
                 state->getPosition(),
                 "no transition leads to it from the first state, " + quoted(first->localName())});
        }
    }
}
