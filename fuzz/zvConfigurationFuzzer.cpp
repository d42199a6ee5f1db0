// Parses a configuration file, then exercises the lookups.
#include "zvCfgAttribute.h"
#include "zvCfgConfigManager.h"
#include "zvCfgLcmState.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCfgTransitionPathList.h"
#include "zvCndParsingUtils.h"
#include "zvFuzzSupport.h"
#include "zvXMLParser.h"

using zvFuzz::require;

namespace {

void lookUpObjects(const zvCfgConfigManager& manager) {
    for (int i = 0; i < manager.numObjects(); ++i) {
        const zvCfgObject* const object = manager.getObjectAt(i);
        require(object != nullptr, "every object up to the count is there");
        const zvString localType = object->getLocalCustomType();
        require(localType.empty() || manager.getObjectsByLocalType(localType) != nullptr,
                "an object is found by its local type");
        require(object->numKeyAttributes() + object->numNonKeyAttributes() >= 0 &&
                    object->numDefaultAttributes() <= object->numAttributes(),
                "attributes are counted");
        const zvCndCondition rule = object->getMappingRule();
        require(rule.IsNull() || !zvCndParsingUtils::createConditionString(rule).empty(),
                "a mapping rule can be written");
    }
    for (int i = 0; i < manager.numFiles(); ++i) {
        const zvCfgFile* const file = manager.getFileAt(i);
        for (int extension = 0; extension < file->numAllowedFileExtensions(); ++extension) {
            require(file->getFileExtension(file->getAllowedFileExtensionAt(extension)) != nullptr,
                    "an extension is found by its name");
        }
    }
}

void lookUpLifecycles(const zvCfgConfigManager& manager) {
    for (int i = 0; i < manager.numLifecycles(); ++i) {
        const zvCfgLcmGraph* const lifecycle = manager.getLifecycleAt(i);
        const zvString type = lifecycle->getObjectType();
        if (lifecycle->numStates() == 0) {
            continue;
        }
        const zvString first = lifecycle->getStateAt(0)->getLocalName();
        const zvString last = lifecycle->getStateAt(lifecycle->numStates() - 1)->getLocalName();
        zvCfgTransitionPathList paths;
        const bool found = manager.getTransitionPaths(first, last, type, "", paths);
        require(found == (paths.size() > 0), "a way that is told of is there");
    }
}

void lookUpViews(const zvCfgConfigManager& manager) {
    for (int i = 0; i < manager.numViewCollections(); ++i) {
        const zvString name = manager.getViewCollectionAt(i);
        require(manager.getViewsInCollection(name) != nullptr, "a collection is found by its name");
        require(manager.getDefaultViewInCollection(name) != nullptr, "a collection has a default view");
    }
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    static const zvXMLParser platform;  // keeps the XML platform initialised, which takes longer than a parse
    zvCfgMgrXmlParser parser;
    const zvResult result = parser.parse(zvFuzz::fileOf(input).c_str(), true);
    require(result.isOk() || !result.getMessage().empty(), "a failure says why");
    const zvCfgConfigManager& manager = *zvCfgConfigManager::getCfgConfigManager();
    lookUpObjects(manager);
    lookUpLifecycles(manager);
    lookUpViews(manager);
    zvCfgConfigManager::destroyCfgConfigManager();
}
