#include "zvCfgViewXmlParser.h"

#include <memory>

#include "zvCfgConfigManager.h"
#include "zvCfgFindings.h"
#include "zvLogSource.h"
#include "zvXMLElement.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgViewXmlParser");

// Reads the views of a section.
class ViewReader {
public:
    explicit ViewReader(const zvXMLParser& parser)
        : m_findings(parser), m_manager(*zvCfgConfigManager::getCfgConfigManager()) {}

    // False for a collection without a name, which ends the reading.
    bool readCollection(const zvXMLElement& collection) const {
        const zvString name = collection.attribute(u"Name");
        if (name.empty()) {
            logger.error("Name not found for ViewCollection");
            m_findings.error(zvFindingKind::missingName, collection, zvString(), zvString(),
                             "a view collection without a Name ends the reading");
            return false;
        }
        int place = 0;
        for (const zvXMLElement view : collection.children(u"View")) {
            addView(view, name, place++);
        }
        return true;
    }

private:
    // A view without an index comes at its place in the collection.
    void addView(const zvXMLElement& element, const zvString& collection, int place) const {
        auto view = std::make_unique<zvCfgView>();
        const zvString localName = element.attribute(u"LocalName");
        const zvString index = element.attribute(u"Index");
        view->setNetworkName(collection);
        view->setIndex(index.empty() ? place : zvString::convertUnicodeToInt(index));
        view->setLocalName(localName);
        view->setRemoteName(element.attribute(u"RemoteName"));
        if (m_findings.areWanted()) {
            reportNames(element, *view);
        }
        if (!m_manager.addView(view.release())) {
            logger.error("Error occured while adding View : ", localName,
                         " of ViewCollection : ", collection);
        }
    }

    // The names by which the view will not be found.
    void reportNames(const zvXMLElement& element, const zvCfgView& view) const {
        const auto report = [&](const char* word, const zvString& name, const zvCfgView* other) {
            const zvString part = zvCfgDescription::ofViewCollection(view.getNetworkName());
            if (name.empty()) {
                m_findings.error(zvFindingKind::missingName, element, part, view.getLocalName(),
                                 "the view has no ", word);
            } else if (other != nullptr) {
                m_findings.error(zvFindingKind::duplicateName, element, part, view.getLocalName(),
                                 "an earlier view has the same ", word);
            }
        };
        const zvString localName = view.getLocalName();
        const zvString remoteName = view.getRemoteName();
        report("LocalName", localName, m_manager.getViewByLocalName(localName));
        report("RemoteName", remoteName, m_manager.getViewByRemoteName(remoteName));
    }

    zvCfgFindings m_findings;
    zvCfgConfigManager& m_manager;
};

}  // namespace

zvResult zvCfgViewXmlParser::parseViewConfig(zvXMLParser& parser) {
    logger.debug("Inside function zvCfgViewXmlParser::parseViewConfig");
    const ViewReader reader(parser);
    const zvXMLElement section(*zvXMLWalk::asElement(parser.getCurrentNode()));
    for (const zvXMLElement collection : section.children(u"ViewCollection")) {
        if (!reader.readCollection(collection)) {
            return {};
        }
    }
    return 0;
}
