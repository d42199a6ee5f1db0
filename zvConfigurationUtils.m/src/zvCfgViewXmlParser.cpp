#include "zvCfgViewXmlParser.h"

#include <memory>

#include "zvCfgConfigManager.h"
#include "zvLogSource.h"
#include "zvXMLElement.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgViewXmlParser");

// A view without an index comes at its place in the collection.
void addView(const zvXMLElement& element, const zvString& collection, int place) {
    auto view = std::make_unique<zvCfgView>();
    const zvString localName = element.attribute(u"LocalName");
    const zvString index = element.attribute(u"Index");
    view->setNetworkName(collection);
    view->setIndex(index.empty() ? place : zvString::convertUnicodeToInt(index));
    view->setLocalName(localName);
    view->setRemoteName(element.attribute(u"RemoteName"));
    if (!zvCfgConfigManager::getCfgConfigManager()->addView(view.release())) {
        logger.error("Error occured while adding View : ", localName, " of ViewCollection : ", collection);
    }
}

}  // namespace

zvResult zvCfgViewXmlParser::parseViewConfig(zvXMLParser& parser) {
    logger.debug("Inside function zvCfgViewXmlParser::parseViewConfig");
    const zvXMLElement section(*zvXMLWalk::asElement(parser.getCurrentNode()));
    for (const zvXMLElement collection : section.children(u"ViewCollection")) {
        const zvString name = collection.attribute(u"Name");
        if (name.empty()) {
            logger.error("Name not found for ViewCollection");
            return {};
        }
        int place = 0;
        for (const zvXMLElement view : collection.children(u"View")) {
            addView(view, name, place++);
        }
    }
    return 0;
}
