#include "zvCfgLifecycleXmlParser.h"

#include <memory>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgFindings.h"
#include "zvLogSource.h"
#include "zvXMLElement.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgLifecycleXmlParser");

constexpr char ofLifecycle[] = " of Lifecycle with ObjectType : ";

// Reads one lifecycle. Transitions lead to states that may come later, so they are added after the last
// one.
class LifecycleReader {
public:
    LifecycleReader(const zvCfgFindings& findings, const zvString& objectType)
        : m_findings(findings),
          m_manager(*zvCfgConfigManager::getCfgConfigManager()),
          m_strObjectType(objectType),
          m_strPart(zvCfgDescription::ofLifecycle(objectType)) {}

    void read(const zvXMLElement& element) {
        for (const zvXMLElement graph : element.children(u"LifecycleGraph")) {
            for (const zvXMLElement state : graph.children(u"LcmState")) {
                addState(state);
            }
        }
        for (const Departure& departure : m_departures) {
            for (const zvXMLElement transition : departure.element.children(u"OutgoingTransition")) {
                addTransition(transition, *departure.state);
            }
        }
        for (const zvXMLElement map : element.children(u"LifecycleStateMap")) {
            for (const zvXMLElement entry : map.children(u"MapEntry")) {
                addRemoteName(entry);
            }
        }
    }

private:
    struct Departure {
        zvCfgLcmState* state;
        zvXMLElement element;
    };

    void addState(const zvXMLElement& element) {
        auto state = std::make_unique<zvCfgLcmState>();
        state->setLocalName(element.attribute(u"Name"));
        if (state->localName().empty()) {
            logger.error("Name not found for LcmState", ofLifecycle, m_strObjectType);
            m_findings.error(zvFindingKind::missingName, element, m_strPart, zvString(),
                             "a state without a Name is left out");
            return;
        }
        state->setKey(element.attribute(u"Key"));
        const zvString index = element.attribute(u"Index");
        state->setIndex(index.empty() ? numStates() : zvString::convertUnicodeToInt(index));
        state->setPosition(m_findings.positionOf(element));
        m_departures.push_back({state.get(), element});
        const zvString name = state->localName();
        const zvString taken = m_findings.areWanted() ? namesTaken(*state) : zvString();
        if (!m_manager.addLcmState(state.release(), m_strObjectType)) {
            logger.error("Error occured while adding LcmState : ", name, ofLifecycle, m_strObjectType);
            m_findings.error(zvFindingKind::duplicateName, element, m_strPart, name,
                             "an earlier state has the same ", taken);
        }
    }

    // What of the state another one of the lifecycle has.
    zvString namesTaken(const zvCfgLcmState& state) const {
        std::vector<const char*> words;
        const zvCfgLcmGraph* const lifecycle = m_manager.getLifecycle(m_strObjectType);
        if (lifecycle != nullptr && lifecycle->getStateByIndex(state.getIndex()) != nullptr) {
            words.push_back("Index");
        }
        if (lifecycle != nullptr && lifecycle->getStateByLocalName(state.localName()) != nullptr) {
            words.push_back("Name");
        }
        if (lifecycle != nullptr && lifecycle->getStateByKey(state.key()) != nullptr) {
            words.push_back("Key");
        }
        return zvCfgFindings::listOf(words);
    }

    int numStates() const {
        const zvCfgLcmGraph* const lifecycle = m_manager.getLifecycle(m_strObjectType);
        return lifecycle == nullptr ? 0 : lifecycle->numStates();
    }

    void addTransition(const zvXMLElement& element, zvCfgLcmState& from) const {
        const zvString typeName = element.attribute(u"Type");
        const zvString toState = element.attribute(u"ToState");
        zvCfgTransitionTypeEnum type{};
        if (!zvCfgTransition::typeOf(typeName, type)) {
            logger.error("Unknown Type : \"", typeName,
                         "\" of OutgoingTransition from LcmState : ", from.localName(),
                         " to LcmState : ", toState, ofLifecycle, m_strObjectType);
            m_findings.error(zvFindingKind::unknownTransition, element, m_strPart, from.localName(),
                             "the Type \"", typeName, "\" of a transition to \"", toState,
                             "\" is neither Promote nor Demote");
        } else if (m_manager.getLcmStateByLocalName(toState, m_strObjectType) == nullptr) {
            logger.error("OutgoingTransition from LcmState : ", from.localName(),
                         " to unknown LcmState : ", toState, ofLifecycle, m_strObjectType);
            m_findings.error(zvFindingKind::unknownState, element, m_strPart, from.localName(),
                             "a transition leads to \"", toState, "\", which is no state of the lifecycle");
        } else {
            from.addOutgoingTransition({type, toState});
        }
    }

    void addRemoteName(const zvXMLElement& element) const {
        const zvString localName = element.attribute(u"LocalName");
        const zvString remoteName = element.attribute(u"RemoteName");
        if (m_manager.getLcmStateByLocalName(localName, m_strObjectType) == nullptr) {
            logger.error("MapEntry with RemoteName : ", remoteName, " for unknown LcmState : ", localName,
                         ofLifecycle, m_strObjectType);
            m_findings.error(zvFindingKind::unknownState, element, m_strPart, localName, "the RemoteName \"",
                             remoteName, "\" is given to what is no state of the lifecycle");
        } else if (!m_manager.addLcmStateByRemoteName(m_strObjectType, localName, remoteName)) {
            logger.error("Error occured while adding RemoteName : ", remoteName, " of LcmState : ", localName,
                         ofLifecycle, m_strObjectType);
            m_findings.error(remoteName.empty() ? zvFindingKind::missingName : zvFindingKind::duplicateName,
                             element, m_strPart, localName, "the RemoteName \"", remoteName,
                             remoteName.empty() ? "\" is empty" : "\" is another state's");
        }
    }

    const zvCfgFindings& m_findings;
    zvCfgConfigManager& m_manager;
    const zvString& m_strObjectType;
    const zvString m_strPart;
    std::vector<Departure> m_departures;
};

}  // namespace

zvResult zvCfgLifecycleXmlParser::parseLifecycleConfig(zvXMLParser& parser) {
    logger.debug("Inside function zvCfgLifecycleXmlParser::parseLifecycleConfig");
    const zvCfgFindings findings(parser);
    const zvXMLElement section(*zvXMLWalk::asElement(parser.getCurrentNode()));
    for (const zvXMLElement lifecycle : section.children(u"Lifecycle")) {
        const zvString objectType = lifecycle.attribute(u"ObjectType");
        if (objectType.empty()) {
            logger.error("ObjectType not found for Lifecycle");
            findings.error(zvFindingKind::missingName, lifecycle, zvString(), zvString(),
                           "a lifecycle without an ObjectType ends the reading");
            return {};
        }
        LifecycleReader(findings, objectType).read(lifecycle);
    }
    return 0;
}
