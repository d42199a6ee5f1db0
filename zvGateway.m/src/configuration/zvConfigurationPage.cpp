#include "zvConfigurationPage.h"

#include <utility>

#include "zvCasesSection.h"
#include "zvConfigurationNames.h"
#include "zvConfigurationPageCss.h"
#include "zvConfigurationPageJs.h"
#include "zvRuleData.h"
#include "zvUtf8Text.h"

using zvPage::escaped;

namespace {

constexpr zvPage::Section objects{"objects", "Objects"};
constexpr zvPage::Section fileTypes{"files", "File types"};
constexpr zvPage::Section views{"views", "Views"};
constexpr zvPage::Section lifecycles{"lifecycles", "Lifecycles"};

constexpr char legend[] = R"(<figcaption>
<span class="promote" aria-hidden="true">&#9472;&#9472;&#9654;</span> promote &emsp;
<span class="demote" aria-hidden="true">&#9476;&#9476;&#9654;</span> demote</figcaption>
)";

// What the page's script makes when it is opened: one element, since a page has thousands of objects.
std::string toolsOf(const zvCfgObject& object) {
    const zvCndCondition rule = object.getMappingRule();
    if (rule.IsNull()) {
        return "<details class=\"tools\"><summary>Both directions</summary></details>\n";
    }
    return "<details class=\"tools\" data-rule=\"" + escaped(fromUtf8(zvRuleData::of(rule))) +
           "\"><summary>Tree, trial and both directions</summary></details>\n";
}

// Of a name that the other system alone has.
std::string nameCell(const zvString& name, const zvString& other, const char* system) {
    return name.empty() && !other.empty() ? zvPage::badge(system) : escaped(name);
}

int numOneSided(const zvCfgObject& object) {
    int count = 0;
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        count += attribute.localName().empty() != attribute.remoteName().empty() ? 1 : 0;
    }
    return count;
}

std::string figure(const zvCfgLcmGraph& lifecycle, const std::string& id, const zvLifecyclePicture* picture) {
    if (picture == nullptr) {
        return "<figure>There is no picture: Graphviz was not there to draw it.</figure>\n";
    }
    const std::string svg = picture->svg(lifecycle, id);
    if (svg.empty()) {
        return "<figure>This lifecycle is too large for a picture.</figure>\n";
    }
    const zvString label = "Picture of the lifecycle of " + lifecycle.getObjectType() + ", with " +
                           lifecycle.numStates() + " states: its transitions stand in the table as well";
    // A picture that is wider than the window is moved by keys, too.
    return "<figure tabindex=\"0\"><div role=\"img\" aria-label=\"" + escaped(label) + "\">" + svg +
           "</div>" + legend + "</figure>\n";
}

}  // namespace

zvConfigurationPage::zvConfigurationPage(const zvCfgConfigManager& configuration, const zvString& title,
                                         const zvLifecyclePicture* picture, const zvTestedCases* cases)
    : m_pCases(cases), m_marks(cases == nullptr ? zvCoverageMarks() : zvCoverageMarks(cases->coverage)) {
    std::vector<zvPage::Section> sections{objects, fileTypes, views, lifecycles};
    if (m_pCases != nullptr) {
        sections.insert(sections.begin(), zvCasesSection::section);
    }
    const zvPage::Frame frame{title,
                              "Search types, attributes, rules, extensions, views, states",
                              std::move(sections),
                              {zvConfigurationPageCss, zvConfigurationPageCssHash},
                              {zvConfigurationPageJs, zvConfigurationPageJsHash}};
    m_html = zvPage::begin(frame);
    if (m_pCases != nullptr) {
        m_html += zvCasesSection::html(*m_pCases, m_anchors);
    }
    addObjects(configuration);
    addFiles(configuration);
    addViews(configuration);
    addLifecycles(configuration, picture);
    m_html += zvPage::end(frame);
}

// Of a table that has a column for the marks, if there are any.
std::vector<const char*> zvConfigurationPage::columns(std::vector<const char*> names) const {
    if (m_pCases != nullptr) {
        names.push_back("Coverage");
    }
    return names;
}

std::string zvConfigurationPage::ruleOf(const zvCfgObject& object) const {
    const zvString written = zvConfigurationNames::rule(object).written;
    return written.empty() ? ""
                           : "<dl class=\"rule\" data-row><dt>when\n</dt><dd><code>" + escaped(written) +
                                 "\n</code></dd>" + m_marks.ofRule(object) + "</dl>\n";
}

std::string zvConfigurationPage::attributeRow(const zvCfgAttribute& attribute) const {
    std::string more;
    attribute.optionalAttributes().forEach([&more](const zvString& name, const zvString& value) {
        more += (more.empty() ? "" : ", ") + escaped(name) + " = " + escaped(value);
    });
    return zvPage::row({nameCell(attribute.localName(), attribute.remoteName(), "remote only"),
                        nameCell(attribute.remoteName(), attribute.localName(), "local only"),
                        escaped(attribute.keyName()), zvConfigurationNames::dataType(attribute.getDataType()),
                        escaped(attribute.getDefaultValue()), more, m_marks.ofAttribute(attribute)});
}

std::string zvConfigurationPage::extensionRow(const zvCfgFileExtension& extension) const {
    const auto word = [](bool isAllowed) { return isAllowed ? "yes" : "<span class=\"no\">no</span>"; };
    return zvPage::row({escaped(extension.getName()), word(extension.isImportAllowed()),
                        word(extension.isExportAllowed()),
                        extension.getTransferMode() == zvTransferModeAscii ? "ASCII" : "BINARY",
                        m_marks.ofExtension(extension)});
}

std::string zvConfigurationPage::stateRow(const zvCfgLcmState& state) const {
    std::string transitions;
    for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
        const zvCfgTransition& transition = *state.getOutgoingTransition(i);
        const char* const type = zvConfigurationNames::transition(transition.getType());
        transitions += (transitions.empty() ? "<span class=\"" : ", <span class=\"") + std::string(type) +
                       "\">" + type + "</span> to " + escaped(transition.toState());
        if (const std::string mark = m_marks.ofTransition(transition); !mark.empty()) {
            transitions += ' ' + mark;
        }
    }
    return zvPage::row({escaped(state.localName()), escaped(state.remoteName()), escaped(state.key()),
                        std::to_string(state.getIndex()), transitions});
}

void zvConfigurationPage::addObjects(const zvCfgConfigManager& configuration) {
    m_html += zvPage::openSection(objects, configuration.numObjects());
    for (int i = 0; i < configuration.numObjects(); ++i) {
        addObject(*configuration.getObjectAt(i));
    }
    m_html += zvPage::closeSection();
}

void zvConfigurationPage::addObject(const zvCfgObject& object) {
    const zvString local = object.getLocalCustomType();
    const zvString remote = object.getRemoteCustomType();
    std::string more;
    if (!object.getOotbTypeStr().empty()) {
        more += " <span class=\"soft\">" + escaped(object.getOotbTypeStr()) + "</span>";
    }
    if (dynamic_cast<const zvCfgFile*>(&object) != nullptr) {
        more += ' ' + zvPage::badge("file");
    }
    if (const int count = numOneSided(object); count > 0) {
        more += " <span class=\"soft\">" + std::to_string(count) + " in one system only</span>";
    }
    more += m_marks.ofObject(object);
    m_html += zvPage::openGroup(m_anchors.add("object", {local, remote}), zvPage::arrow(local, remote), more,
                                object.numAttributes() + 2) +
              ruleOf(object) + toolsOf(object);
    if (object.numAttributes() > 0) {
        m_html +=
            zvPage::openTable(m_pCases == nullptr ? "attributes" : "attributes tested",
                              "Attributes of " + local + " to " + remote,
                              columns({"Local name", "Remote name", "Key", "Type", "Default", "Further"}));
        for (int i = 0; i < object.numAttributes(); ++i) {
            m_html += attributeRow(*object.getAttribute(i));
        }
        m_html += zvPage::closeTable();
    }
    m_html += zvPage::closeGroup();
}

void zvConfigurationPage::addFiles(const zvCfgConfigManager& configuration) {
    m_html += zvPage::openSection(fileTypes, configuration.numFiles());
    for (int i = 0; i < configuration.numFiles(); ++i) {
        const zvCfgFile& file = *configuration.getFileAt(i);
        const zvString local = file.getLocalCustomType();
        const zvString remote = file.getRemoteCustomType();
        std::string rows;
        int count = 0;
        file.forEachFileExtension([&](const zvCfgFileExtension& extension) {
            rows += extensionRow(extension);
            ++count;
        });
        m_html += zvPage::openGroup(m_anchors.add("files", {local, remote}), zvPage::arrow(local, remote), "",
                                    count) +
                  zvPage::openTable("extensions", "Extensions of " + local + " to " + remote,
                                    columns({"Extension", "Import", "Export", "Transfer"})) +
                  rows + zvPage::closeTable() + zvPage::closeGroup();
    }
    m_html += zvPage::closeSection();
}

void zvConfigurationPage::addViews(const zvCfgConfigManager& configuration) {
    m_html += zvPage::openSection(views, configuration.numViewCollections());
    for (int i = 0; i < configuration.numViewCollections(); ++i) {
        const zvString collection = configuration.getViewCollectionAt(i);
        const zvCfgViewList& list = *configuration.getViewsInCollection(collection);
        const zvCfgView* const first = configuration.getDefaultViewInCollection(collection);
        m_html +=
            zvPage::openGroup(m_anchors.add("views", {collection}), "<b>" + escaped(collection) + "</b>", "",
                              list.size()) +
            zvPage::openTable("views", "Views of " + collection, {"Local name", "Remote name", "Index"});
        for (int k = 0; k < list.size(); ++k) {
            const zvCfgView& view = *list.get(k);
            m_html += zvPage::row(
                {escaped(view.getLocalName()) + (&view == first ? ' ' + zvPage::badge("default") : ""),
                 escaped(view.getRemoteName()), std::to_string(view.getIndex())});
        }
        m_html += zvPage::closeTable() + zvPage::closeGroup();
    }
    m_html += zvPage::closeSection();
}

void zvConfigurationPage::addLifecycles(const zvCfgConfigManager& configuration,
                                        const zvLifecyclePicture* picture) {
    m_html += zvPage::openSection(lifecycles, configuration.numLifecycles());
    for (int i = 0; i < configuration.numLifecycles(); ++i) {
        const zvCfgLcmGraph& lifecycle = *configuration.getLifecycleAt(i);
        const zvString type = lifecycle.getObjectType();
        // A picture is as high as four rows.
        m_html += zvPage::openGroup(m_anchors.add("lifecycle", {type}), "<b>" + escaped(type) + "</b>", "",
                                    lifecycle.numStates() + 4) +
                  figure(lifecycle, "picture" + std::to_string(i), picture) +
                  zvPage::openTable("states", "States of " + type,
                                    {"Local name", "Remote name", "Key", "Index", "Transitions"});
        for (int k = 0; k < lifecycle.numStates(); ++k) {
            m_html += stateRow(*lifecycle.getStateAt(k));
        }
        m_html += zvPage::closeTable() + zvPage::closeGroup();
    }
    m_html += zvPage::closeSection();
}
