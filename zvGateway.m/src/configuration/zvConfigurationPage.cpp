#include "zvConfigurationPage.h"

#include <initializer_list>

#include "zvCharString.h"
#include "zvConfigurationNames.h"
#include "zvConfigurationPageParts.h"

namespace {

// As content of an element and as a quoted attribute.
std::string escaped(const char* text) {
    std::string result;
    for (; *text != '\0'; ++text) {
        switch (*text) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            case '\'':
                result += "&#39;";
                break;
            default:
                result += *text;
        }
    }
    return result;
}

std::string escaped(const zvString& text) { return escaped(zvCharString(text).data()); }

std::string badge(const char* text) { return std::string(" <span class=\"badge\">") + text + "</span>"; }

std::string arrow(const zvString& local, const zvString& remote) {
    return "<b>" + escaped(local) + "</b> <span class=\"arrow\">&rarr;</span> <b>" + escaped(remote) + "</b>";
}

// The cells are HTML.
std::string row(std::initializer_list<std::string> cells) {
    std::string result = "<tr data-row>";
    for (const std::string& cell : cells) {
        result += "<td>" + cell + "</td>";
    }
    return result + "</tr>\n";
}

std::string openSection(const char* id, const char* heading, int count) {
    return "<section id=\"" + std::string(id) + "\"><h2>" + heading + " <span class=\"count\">" +
           std::to_string(count) + "</span></h2>\n";
}

std::string openTable(std::initializer_list<const char*> columns) {
    std::string result = "<table><thead><tr>";
    for (const char* const column : columns) {
        result += "<th>" + std::string(column) + "</th>";
    }
    return result + "</tr></thead>\n";
}

// A group of rows that a search keeps together with its heading, which is HTML.
std::string openGroup(const std::string& heading, int columns) {
    return "<tbody data-group><tr class=\"group\"><th data-head colspan=\"" + std::to_string(columns) +
           "\">" + heading + "</th></tr>\n";
}

std::string attributeRow(const zvCfgAttribute& attribute) {
    std::string more;
    attribute.optionalAttributes().forEach([&more](const zvString& name, const zvString& value) {
        more += (more.empty() ? "" : ", ") + escaped(name) + " = " + escaped(value);
    });
    return row({escaped(attribute.localName()), escaped(attribute.remoteName()), escaped(attribute.keyName()),
                zvConfigurationNames::dataType(attribute.getDataType()), escaped(attribute.getDefaultValue()),
                more});
}

std::string objectGroup(const zvCfgObject& object) {
    constexpr int columns = 6;
    std::string heading = arrow(object.getLocalCustomType(), object.getRemoteCustomType());
    if (!object.getOotbTypeStr().empty()) {
        heading += " <span class=\"standard\">" + escaped(object.getOotbTypeStr()) + "</span>";
    }
    if (dynamic_cast<const zvCfgFile*>(&object) != nullptr) {
        heading += badge("file");
    }
    std::string result = openGroup(heading, columns);
    const zvString rule = zvConfigurationNames::rule(object);
    if (!rule.empty()) {
        result += R"(<tr class="rule" data-row><td colspan="6">when <code>)" + escaped(rule) +
                  "</code></td></tr>\n";
    }
    for (int i = 0; i < object.numAttributes(); ++i) {
        result += attributeRow(*object.getAttribute(i));
    }
    return result + "</tbody>\n";
}

std::string stateRow(const zvCfgLcmState& state) {
    std::string transitions;
    for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
        const zvCfgTransition& transition = *state.getOutgoingTransition(i);
        const char* const type = zvConfigurationNames::transition(transition.getType());
        transitions += (transitions.empty() ? "<span class=\"" : ", <span class=\"") + std::string(type) +
                       "\">" + type + "</span> to " + escaped(transition.toState());
    }
    return row({std::to_string(state.getIndex()), escaped(state.key()), escaped(state.localName()),
                escaped(state.remoteName()), transitions});
}

std::string figure(const zvCfgLcmGraph& lifecycle, const std::string& id, const zvLifecyclePicture* picture) {
    if (picture == nullptr) {
        return "There is no picture: Graphviz was not there to draw it.\n";
    }
    const std::string svg = picture->svg(lifecycle, id);
    return svg.empty() ? "This lifecycle is too large for a picture.\n"
                       : svg + zvConfigurationPageParts::legend;
}

}  // namespace

zvConfigurationPage::zvConfigurationPage(const zvCfgConfigManager& configuration, const std::string& title,
                                         const zvLifecyclePicture* picture) {
    const std::string heading = escaped(title.c_str());
    m_html =
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width\">\n<title>" +
        heading + "</title>\n<style>" + zvConfigurationPageParts::style + "</style></head>\n<body>\n<h1>" +
        heading + "</h1>\n" + zvConfigurationPageParts::searchBar;
    addObjects(configuration);
    addFiles(configuration);
    addViews(configuration);
    addLifecycles(configuration, picture);
    m_html += std::string("<script>") + zvConfigurationPageParts::script + "</script>\n</body></html>\n";
}

void zvConfigurationPage::addObjects(const zvCfgConfigManager& configuration) {
    m_html += openSection("objects", "Objects and attributes", configuration.numObjects()) +
              openTable({"Local name", "Remote name", "Key", "Type", "Default", "Further"});
    for (int i = 0; i < configuration.numObjects(); ++i) {
        m_html += objectGroup(*configuration.getObjectAt(i));
    }
    m_html += "</table></section>\n";
}

void zvConfigurationPage::addFiles(const zvCfgConfigManager& configuration) {
    constexpr int columns = 4;
    m_html += openSection("files", "File types", configuration.numFiles()) +
              openTable({"Extension", "Import", "Export", "Transfer"});
    for (int i = 0; i < configuration.numFiles(); ++i) {
        const zvCfgFile& file = *configuration.getFileAt(i);
        m_html += openGroup(arrow(file.getLocalCustomType(), file.getRemoteCustomType()), columns);
        file.forEachFileExtension([this](const zvCfgFileExtension& extension) {
            const auto tick = [](bool allowed) {
                return allowed ? "&#10003;" : "<span class=\"no\">&ndash;</span>";
            };
            m_html += row({escaped(extension.getName()), tick(extension.isImportAllowed()),
                           tick(extension.isExportAllowed()),
                           extension.getTransferMode() == zvTransferModeAscii ? "ASCII" : "BINARY"});
        });
        m_html += "</tbody>\n";
    }
    m_html += "</table></section>\n";
}

void zvConfigurationPage::addViews(const zvCfgConfigManager& configuration) {
    constexpr int columns = 3;
    m_html += openSection("views", "Views", configuration.numViewCollections()) +
              openTable({"Index", "Local name", "Remote name"});
    for (int i = 0; i < configuration.numViewCollections(); ++i) {
        const zvString collection = configuration.getViewCollectionAt(i);
        const zvCfgViewList& views = *configuration.getViewsInCollection(collection);
        const zvCfgView* const first = configuration.getDefaultViewInCollection(collection);
        m_html += openGroup("<b>" + escaped(collection) + "</b>", columns);
        for (int k = 0; k < views.size(); ++k) {
            const zvCfgView& view = *views.get(k);
            m_html += row({std::to_string(view.getIndex()),
                           escaped(view.getLocalName()) + (&view == first ? badge("default") : ""),
                           escaped(view.getRemoteName())});
        }
        m_html += "</tbody>\n";
    }
    m_html += "</table></section>\n";
}

void zvConfigurationPage::addLifecycles(const zvCfgConfigManager& configuration,
                                        const zvLifecyclePicture* picture) {
    m_html += openSection("lifecycles", "Lifecycles", configuration.numLifecycles());
    for (int i = 0; i < configuration.numLifecycles(); ++i) {
        const zvCfgLcmGraph& lifecycle = *configuration.getLifecycleAt(i);
        m_html += "<article data-group><h3 data-head>" + escaped(lifecycle.getObjectType()) +
                  "</h3>\n<figure>" + figure(lifecycle, "lifecycle" + std::to_string(i), picture) +
                  "</figure>\n" + openTable({"Index", "Key", "Local name", "Remote name", "Transitions"}) +
                  "<tbody>\n";
        for (int k = 0; k < lifecycle.numStates(); ++k) {
            m_html += stateRow(*lifecycle.getStateAt(k));
        }
        m_html += "</tbody></table></article>\n";
    }
    m_html += "</section>\n";
}
