#include "zvCfgAttribute.h"
#include "zvCfgConfigManager.h"
#include "zvCfgFile.h"
#include "zvCfgFileConfig.h"
#include "zvCfgFileExtension.h"
#include "zvCfgFileList.h"
#include "zvCfgLcmState.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCfgObjectXmlParser.h"
#include "zvCfgOptionalAttributes.h"
#include "zvCfgTransitionPathList.h"
#include "zvCfgView.h"
#include "zvCfgViewList.h"
#include "zvCheck.h"
#include "zvCndParsingUtils.h"
#include "zvTransferModeEnum.h"

namespace {

// Compiled only: the name is read while a document is being parsed.
class DerivedParser : public zvCfgMgrXmlParser {
public:
    zvString name() { return parsePdmSystemName(); }
};

zvCfgAttribute* attribute() {
    auto* const made = new zvCfgAttribute;
    made->setKeyName(1);
    made->setLocalName("local");
    made->setRemoteName('r');
    made->setDataType(zvDataTypeInteger);
    made->setDefaultValue(5);
    ZV_CHECK(made->getKeyName() == 1 && made->getLocalName() == "local" && made->getRemoteName() == 'r');
    ZV_CHECK(made->getDataType() == zvDataTypeInteger && made->getDefaultValue() == 5);
    ZV_CHECK(made->isKeyAttribute() && made->isDefaultValueSpecified());
    ZV_CHECK(made->addOptionalAttribute("unit", 'm') && made->getOptionalAttribute("unit") == 'm');
    return made;
}

void fill(zvCfgObject& object) {
    object.setOotbType("Standard");
    object.setLocalCustomType("Part");
    object.setRemoteCustomType(7);
    object.setMappingRule(zvCndParsingUtils::createConditionStructure("{a} = '1'"));
    ZV_CHECK(object.getOotbTypeStr() == "Standard" && object.getLocalCustomType() == "Part");
    ZV_CHECK(object.getRemoteCustomType() == 7 && !object.getMappingRule().IsNull());
    ZV_CHECK(object.addAttribute(attribute()) && object.numKeyAttributes() == 1);
    const zvCfgAttribute* const key = object.getKeyAttribute(0);
    ZV_CHECK(key != nullptr && object.numNonKeyAttributes() == 0 && object.getNonKeyAttribute(0) == nullptr);
    ZV_CHECK(object.numDefaultAttributes() == 1 && object.getDefaultAttribute(0) == key);
    ZV_CHECK(object.getAttributeByKey(1) == key && object.getAttributeByLocalName("local") == key);
    ZV_CHECK(object.getAttributeByRemoteName('r') == key);
}

zvCfgFile* file() {
    auto* const made = new zvCfgFile;
    auto* const extension = new zvCfgFileExtension;
    fill(*made);
    extension->setName("pdf");
    extension->setImportAllowed(true);
    extension->setExportAllowed(true);
    extension->setTransferMode(zvTransferModeAscii);
    ZV_CHECK(made->addFileExtension(extension) && made->numAllowedFileExtensions() == 1);
    ZV_CHECK(made->getFileExtension(0) == extension && made->getFileExtension("pdf") == extension);
    ZV_CHECK(made->getAllowedFileExtensionAt(0) == "pdf" && extension->getTransferMode() == 0);
    ZV_CHECK(extension->getName() == "pdf" && extension->isImportAllowed() && extension->isExportAllowed());
    return made;
}

void lists() {
    zvCfgObject object;
    zvCfgObjectList objects;
    zvCfgFileList files;
    objects.add(&object);
    files.addFile(new zvCfgFile);
    ZV_CHECK(objects.get(0) == &object && objects.size() == 1 && files.size() == 1);
    files.deleteAll();
    ZV_CHECK(files.getFile(0) == nullptr);
}

void objects(zvCfgConfigManager& manager) {
    auto* const object = new zvCfgObject;
    fill(*object);
    ZV_CHECK(manager.addObject(object) && manager.addFile(file()));
    ZV_CHECK(manager.getObjectsByOOTBType("Standard")->size() == 2 &&
             manager.getObjectsByLocalType("Part") != nullptr);
    ZV_CHECK(manager.getObjectsByRemoteType(7)->get(0) == object &&
             manager.getObjects("Part", 7)->size() == 2);
    ZV_CHECK(manager.getFilesByOOTBType("Standard")->size() == 1 &&
             manager.getFilesByLocalType('x') == nullptr);
    ZV_CHECK(manager.getFilesByRemoteType(7)->size() == 1 &&
             manager.getImportableFileTypes()->numStrings() == 1);
    ZV_CHECK(manager.getExportableFileTypes()->numStrings() == 1 && manager.isFileAllowedForImport("PDF"));
    ZV_CHECK(manager.isFileAllowedForExport("PDF"));
}

void statesAndViews(zvCfgConfigManager& manager) {
    auto* const state = new zvCfgLcmState;
    state->setLocalName("INWORK");
    ZV_CHECK(manager.addLcmState(state, "Part") && manager.addLcmStateByRemoteName("Part", "INWORK", 1));
    ZV_CHECK(manager.getLcmStateByKey("INWORK", "Part") == state &&
             manager.getLcmStateByRemoteName(1, "Part") == state);
    ZV_CHECK(manager.getLcmStateByLocalName("INWORK", "Part") == state &&
             manager.getLcmStateIndex(1, 'x') == -1);
    zvCfgTransitionPathList paths;
    ZV_CHECK(!manager.getTransitionPaths("INWORK", "FROZEN", "Part", "Promote", paths));
    auto* const view = new zvCfgView;
    view->setNetworkName('c');
    view->setLocalName("Design");
    view->setRemoteName(2);
    ZV_CHECK(manager.addView(view) && manager.numViewCollections() == 1 &&
             manager.getViewCollectionAt(0) == 'c');
    ZV_CHECK(manager.getViewsInCollection('c')->size() == 1 &&
             manager.getDefaultViewInCollection('c') != nullptr);
    ZV_CHECK(manager.getViewByLocalName("Design") == manager.getViewByRemoteName(2));
}

void parsing() {
    DerivedParser parser;
    ZV_CHECK(parser.parse("<CustomizationConfig><ViewConfig/></CustomizationConfig>", false) == 0);
    ZV_CHECK(parser.parse("<CustomizationConfig/>", false) == 2 && parser.parse(5, false) == 1);
}

}  // namespace

int main() {
    lists();
    zvCfgConfigManager* const manager = zvCfgConfigManager::getCfgConfigManager();
    objects(*manager);
    statesAndViews(*manager);
    parsing();
    zvCfgConfigManager::destroyCfgConfigManager();
    return failures;
}
