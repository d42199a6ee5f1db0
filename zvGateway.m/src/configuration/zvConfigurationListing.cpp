#include "zvConfigurationListing.h"

#include <string>

#include "zvConfigurationNames.h"
#include "zvConsole.h"

using zvConfigurationNames::quoted;
using zvConsole::padded;
using zvConsole::printable;
using zvConsole::write;

namespace {

constexpr std::size_t nameColumns = 20;
constexpr std::size_t extensionColumns = 10;

void printHeading(const char* heading, int count) {
    if (count > 0) {
        write(std::string("\n") + heading + "\n");
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
    write("    " + padded(printable(attribute.localName()), nameColumns) + " -> " +
          padded(printable(attribute.remoteName()), nameColumns) + " " +
          zvConfigurationNames::dataType(attribute.getDataType()) + more + "\n");
}

void printObject(const zvCfgObject& object) {
    write("  " + zvConfigurationNames::object(object) + "  (" + printable(object.getOotbTypeStr()) + ")\n");
    const zvConfigurationNames::Rule rule = zvConfigurationNames::rule(object);
    if (!rule.written.empty()) {
        write("    when " + printable(rule.written) + "\n");
    }
    if (!rule.read.empty()) {
        write("    read as " + printable(rule.read) + "\n");
    }
    for (int i = 0; i < object.numAttributes(); ++i) {
        printAttribute(*object.getAttribute(i));
    }
}

void printState(const zvCfgLcmState& state) {
    write("    " + std::to_string(state.getIndex()) + "  " + quoted(state.localName()) + " -> " +
          quoted(state.remoteName()) + "  key " + quoted(state.key()) + "\n");
    for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
        const zvCfgTransition& transition = *state.getOutgoingTransition(i);
        write(std::string("         ") + zvConfigurationNames::transition(transition.getType()) + " to " +
              quoted(transition.toState()) + "\n");
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
        write("  " + zvConfigurationNames::object(file) + "\n");
        file.forEachFileExtension([](const zvCfgFileExtension& extension) {
            write("    " + padded(printable(extension.getName()), extensionColumns) +
                  (extension.getTransferMode() == zvTransferModeAscii ? " ASCII " : " BINARY") +
                  (extension.isImportAllowed() ? " import" : "       ") +
                  (extension.isExportAllowed() ? " export\n" : " \n"));
        });
    }
}

void zvConfigurationListing::printViews() const {
    printHeading("views", m_configuration.numViewCollections());
    for (int i = 0; i < m_configuration.numViewCollections(); ++i) {
        const zvString collection = m_configuration.getViewCollectionAt(i);
        const zvCfgViewList& views = *m_configuration.getViewsInCollection(collection);
        const zvCfgView* const first = m_configuration.getDefaultViewInCollection(collection);
        write("  collection " + quoted(collection) + "\n");
        for (int k = 0; k < views.size(); ++k) {
            const zvCfgView& view = *views.get(k);
            write("    " + std::to_string(view.getIndex()) + "  " + quoted(view.getLocalName()) + " -> " +
                  quoted(view.getRemoteName()) + (&view == first ? "  default\n" : "\n"));
        }
    }
}

void zvConfigurationListing::printLifecycles() const {
    printHeading("lifecycles", m_configuration.numLifecycles());
    for (int i = 0; i < m_configuration.numLifecycles(); ++i) {
        const zvCfgLcmGraph& lifecycle = *m_configuration.getLifecycleAt(i);
        write("  lifecycle " + quoted(lifecycle.getObjectType()) + "\n");
        for (int k = 0; k < lifecycle.numStates(); ++k) {
            printState(*lifecycle.getStateAt(k));
        }
    }
}
