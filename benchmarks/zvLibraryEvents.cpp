// The events of a batch by the library's calls alone: arguments, shadow directory, the mapping's rule, data
// file, transfer of two files, post. usage: zvLibraryEvents ROOT EVENTS    with GATEWAY_HOME and CLASSPATH
// set
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "zvCommonUtilsExport.h"

namespace {

using Arguments = std::unique_ptr<zvEventArguments, void (*)(zvEventArguments*)>;

Arguments parse(const char* root, int number) {
    std::string texts[] = {"zvLibraryEvents",
                           "EventName=publishLkPart",
                           "EventTriggeredByUser=jdoe",
                           "RootShadowDir=" + std::string(root),
                           "LocalType=Part",
                           "attr.number=P-" + std::to_string(number),
                           "attr.rev=3",
                           "attr.state=RELEASED",
                           "attr.owner=x"};
    char* argv[std::size(texts)];
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        argv[i] = texts[i].data();
    }
    return {zvEventArguments::parseEventArguments(static_cast<int>(std::size(texts)), argv),
            [](zvEventArguments* arguments) { arguments->destroy(); }};
}

const zvCfgObject* choose(const zvEventArguments& arguments) {
    zvCndContext context;
    for (const char* const name : {"number", "rev", "state", "owner"}) {
        zvAttribute attribute(name, arguments.getEventArgumentValue(zvString("attr.") + name));
        context.addAttribute(attribute);
    }
    const zvCfgObjectList* const candidates =
        zvCfgConfigManager::getCfgConfigManager()->getObjectsByLocalType("Part");
    for (int i = 0; candidates != nullptr && i < candidates->size(); ++i) {
        const zvCndCondition rule = candidates->get(i)->getMappingRule();
        if (rule.IsNull() || rule->evaluate(context)) {
            return candidates->get(i);
        }
    }
    return nullptr;
}

bool writeDataFile(const zvEventArguments& arguments, const zvCfgObject& object) {
    zvXMLParser document;
    bool isWritten = document.createXMLTree("MappedObject") &&
                     document.addAttribute("LocalType", object.getLocalCustomType()) &&
                     document.addAttribute("RemoteType", object.getRemoteCustomType());
    for (int i = 0; isWritten && i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        const zvString value = arguments.getEventArgumentValue(zvString("attr.") + attribute.localName());
        isWritten = document.addStartTag("Attribute") &&
                    document.addAttribute("Name", attribute.remoteName()) &&
                    (value.empty() || document.addMemberValue(value)) && document.addEndTag();
    }
    const zvString directory = arguments.getEventArgumentValue("RootShadowDir") + "\\" +
                               arguments.getEventArgumentValue("EventShadowDir");
    return isWritten && document.writeTreeToFile(
                            directory + "\\" + arguments.getEventArgumentValue("DataFileName"), "UTF-8");
}

bool takeEvent(const char* root, int number) {
    const Arguments arguments = parse(root, number);
    if (!zvEventArguments::populateEventArguments(root, *arguments).isOk()) {
        return false;
    }
    const zvCfgObject* const object = choose(*arguments);
    if (object == nullptr || !writeDataFile(*arguments, *object)) {
        return false;
    }
    zvFSClient::getInstance(zvCommonUtils::getConfigurationFile("fileserver.properties"));
    const bool isSent = zvFSClientUtil::createNewShadowDir(*arguments).isOk() &&
                        zvFSClientUtil::uploadEventFiles(*arguments, zvAttachmentList()).isOk();
    zvFSClient::destroyInstance();
    const std::unique_ptr<zvCommunicationUtils> server(
        zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    return isSent && server->request(zvCommonUtils::getLocalServerUrl(), *arguments, nullptr).isOk();
}

}  // namespace

int main(int, char** argv) {
    std::setlocale(LC_ALL, "C.UTF-8");
    const zvString configuration = zvCommonUtils::getConfigurationFile("customization-config.xml");
    if (!zvCfgMgrXmlParser().parse(configuration, true).isOk()) {
        return EXIT_FAILURE;
    }
    const zvXMLParser keepsTheXmlLibraryReady;
    for (int number = 0; number < std::atoi(argv[2]); ++number) {
        if (!takeEvent(argv[1], number)) {
            std::fprintf(stderr, "event %d failed\n", number);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
