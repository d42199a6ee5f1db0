#include "zvConfigurationListing.h"

#include <cstdio>
#include <string>

#include "zvConfigurationNames.h"
#include "zvConsole.h"

using zvConfigurationNames::quoted;
using zvConsole::printable;

namespace {

void printHeading(const char* heading, int count) {
    if (count > 0) {
        std::printf("\n%s\n", heading);
    }
}

void printAttribute(const zvCfgAttribute& attribute) {
    std::string more;
    if (attribute.isKeyAttribute()) {
        more += "  key " + quoted(attribute.keyName());
    }
    if (attribute.isDefaultValueSpecified()) {
        more += "  default " + quoted(attribute.getDefaultValue());
    }
    attribute.optionalAttributes().forEach([&more](const zvString& name, const zvString& value) {
        more += "  " + printable(name) + " " + quoted(value);
    });
    std::printf("    %-20s -> %-20s %s%s\n", printable(attribute.localName()).c_str(),
                printable(attribute.remoteName()).c_str(),
                zvConfigurationNames::dataType(attribute.getDataType()).c_str(), more.c_str());
}

void printObject(const zvCfgObject& object) {
    std::printf("  %s  (%s)\n", zvConfigurationNames::object(object).c_str(),
                printable(object.getOotbTypeStr()).c_str());
    const zvConfigurationNames::Rule rule = zvConfigurationNames::rule(object);
    if (!rule.written.empty()) {
        std::printf("    when %s\n", printable(rule.written).c_str());
    }
    if (!rule.read.empty()) {
        std::printf("    read as %s\n", printable(rule.read).c_str());
    }
    for (int i = 0; i < object.numAttributes(); ++i) {
        printAttribute(*object.getAttribute(i));
    }
}

void printState(const zvCfgLcmState& state) {
    std::printf("    %d  %s -> %s  key %s\n", state.getIndex(), quoted(state.localName()).c_str(),
                quoted(state.remoteName()).c_str(), quoted(state.key()).c_str());
    for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
        const zvCfgTransition& transition = *state.getOutgoingTransition(i);
        std::printf("         %s to %s\n", zvConfigurationNames::transition(transition.getType()),
                    quoted(transition.toState()).c_str());
    }
}

}  // namespace

void zvConfigurationListing::print() const {
    printObjects();
    printFiles();
    printViews();
    printLifecycles();
}

void zvConfigurationListing::printObjects() const {
    printHeading("objects", m_configuration.numObjects());
    for (int i = 0; i < m_configuration.numObjects(); ++i) {
        printObject(*m_configuration.getObjectAt(i));
    }
}

void zvConfigurationListing::printFiles() const {
    printHeading("file types", m_configuration.numFiles());
    for (int i = 0; i < m_configuration.numFiles(); ++i) {
        const zvCfgFile& file = *m_configuration.getFileAt(i);
        std::printf("  %s\n", zvConfigurationNames::object(file).c_str());
        file.forEachFileExtension([](const zvCfgFileExtension& extension) {
            std::printf("    %-10s %-6s %s %s\n", printable(extension.getName()).c_str(),
                        extension.getTransferMode() == zvTransferModeAscii ? "ASCII" : "BINARY",
                        extension.isImportAllowed() ? "import" : "      ",
                        extension.isExportAllowed() ? "export" : "");
        });
    }
}

void zvConfigurationListing::printViews() const {
    printHeading("views", m_configuration.numViewCollections());
    for (int i = 0; i < m_configuration.numViewCollections(); ++i) {
        const zvString collection = m_configuration.getViewCollectionAt(i);
        const zvCfgViewList& views = *m_configuration.getViewsInCollection(collection);
        const zvCfgView* const first = m_configuration.getDefaultViewInCollection(collection);
        std::printf("  collection %s\n", quoted(collection).c_str());
        for (int k = 0; k < views.size(); ++k) {
            const zvCfgView& view = *views.get(k);
            std::printf("    %d  %s -> %s%s\n", view.getIndex(), quoted(view.getLocalName()).c_str(),
                        quoted(view.getRemoteName()).c_str(), &view == first ? "  default" : "");
        }
    }
}

void zvConfigurationListing::printLifecycles() const {
    printHeading("lifecycles", m_configuration.numLifecycles());
    for (int i = 0; i < m_configuration.numLifecycles(); ++i) {
        const zvCfgLcmGraph& lifecycle = *m_configuration.getLifecycleAt(i);
        std::printf("  lifecycle %s\n", quoted(lifecycle.getObjectType()).c_str());
        for (int k = 0; k < lifecycle.numStates(); ++k) {
            printState(*lifecycle.getStateAt(k));
        }
    }
}
