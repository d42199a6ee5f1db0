#include "zvConfigurationDocument.h"

#include <algorithm>

#include "zvCfgDescription.h"
#include "zvCfgFile.h"
#include "zvCheckKind.h"
#include "zvNearestName.h"

namespace {

struct Child {
    const char* parent;
    const char* tag;
};

// The elements that are read, and where.
constexpr Child children[] = {
    {"CustomizationConfig", "ObjectConfig"},
    {"CustomizationConfig", "LifecycleConfig"},
    {"CustomizationConfig", "ViewConfig"},
    {"ObjectConfig", "Object"},
    {"ObjectConfig", "FileObject"},
    {"Object", "Attribute"},
    {"Object", "MappingRule"},
    {"FileObject", "Attribute"},
    {"FileObject", "MappingRule"},
    {"FileObject", "AllowedExtns"},
    {"AllowedExtns", "Extn"},
    {"LifecycleConfig", "Lifecycle"},
    {"Lifecycle", "LifecycleGraph"},
    {"Lifecycle", "LifecycleStateMap"},
    {"LifecycleGraph", "LcmState"},
    {"LcmState", "OutgoingTransition"},
    {"LifecycleStateMap", "MapEntry"},
    {"ViewConfig", "ViewCollection"},
    {"ViewCollection", "View"},
};

bool isRead(const zvString& parent, const zvString& tag) {
    for (const Child& child : children) {
        if (child.parent == parent && child.tag == tag) {
            return true;
        }
    }
    return false;
}

using Names = std::vector<zvString>;

struct Element {
    const char* tag;
    Names attributes;
};

// The attributes that are read. All those of an Attribute are kept.
const Element elements[] = {
    {"CustomizationConfig", {"PdmSystemName"}},
    {"Object", {"OOTBType", "LocalCustType", "RemoteCustType"}},
    {"FileObject", {"OOTBType", "LocalCustType", "RemoteCustType"}},
    {"Extn", {"Name", "Import", "Export", "TransferMode"}},
    {"Lifecycle", {"ObjectType"}},
    {"LcmState", {"Name", "Index", "Key"}},
    {"OutgoingTransition", {"Type", "ToState"}},
    {"MapEntry", {"LocalName", "RemoteName"}},
    {"ViewCollection", {"Name"}},
    {"View", {"LocalName", "RemoteName", "Index"}},
};

const Names& attributesOf(const zvString& tag) {
    static const Names none;
    const auto* const found = std::find_if(std::begin(elements), std::end(elements),
                                           [&tag](const Element& element) { return element.tag == tag; });
    return found == std::end(elements) ? none : found->attributes;
}

// What says where the schema is, and the like.
bool isForEditors(const zvString& attribute) { return attribute.find(":") >= 0 || "xmlns" == attribute; }

bool isWholeNumber(const zvString& text) {
    constexpr int mostDigits = 10;
    const int begin = text[0] == u'+' || text[0] == u'-' ? 1 : 0;
    const int digits = text.size() - begin;
    const auto* const first = text.data() + begin;
    return digits > 0 && digits <= mostDigits && std::all_of(first, first + digits, [](auto character) {
               return character >= u'0' && character <= u'9';
           });
}

struct Need {
    const char* tag;
    const char* child;
    const char* complaint;
};

constexpr Need needs[] = {
    {"ViewCollection", "View", "it has no View, and so no default view"},
    {"Lifecycle", "LifecycleGraph", "it has no LifecycleGraph"},
    {"LifecycleGraph", "LcmState", "its LifecycleGraph has no LcmState"},
    {"FileObject", "AllowedExtns", "it has no AllowedExtns"},
};

const Need* needOf(const zvString& tag) {
    for (const Need& need : needs) {
        if (need.tag == tag) {
            return &need;
        }
    }
    return nullptr;
}

}  // namespace

zvConfigurationDocument::zvConfigurationDocument(const std::string& file) {
    zvString root;
    if (m_parser.loadXMLFromString(file.c_str(), true) && m_parser.getRoot(root) &&
        "CustomizationConfig" == root) {
        readElement(root, zvString());
    }
}

// The cursor is on an element that is read. As deep as the table, whatever the file.
void zvConfigurationDocument::readElement(const zvString& tag, const zvString& outer) {
    const zvString owner = ownerAt(tag, outer);
    if ("Extn" == tag) {
        checkExtension(owner);
    }
    checkAttributes(tag, owner);
    const Need* const need = needOf(tag);
    bool isMet = need == nullptr;
    zvString child;
    if (m_parser.getFirstChild(child)) {
        do {
            isMet = isMet || need->child == child;
            if (isRead(tag, child)) {
                readElement(child, owner);
            } else {
                warn(zvCheckKind::unknownElement, owner, zvString(),
                     "the element \"" + child + "\" is unknown in \"" + tag + "\" and not read");
            }
        } while (m_parser.getNextSibling(child));
        zvString parent;
        m_parser.getParent(parent);
    }
    if (!isMet) {
        warn(zvFindingKind::emptySection, owner, zvString(), need->complaint);
    }
}

zvString zvConfigurationDocument::attributeValue(const char* name) const {
    zvString value;
    static_cast<void>(m_parser.getAttribute(name, value));
    return value;
}

// What a finding in the element is told to be in.
zvString zvConfigurationDocument::ownerAt(const zvString& tag, const zvString& outer) const {
    const auto describe = [this](zvCfgObject&& object) {
        object.setLocalCustomType(attributeValue("LocalCustType"));
        object.setRemoteCustomType(attributeValue("RemoteCustType"));
        return zvCfgDescription::ofObject(object);
    };
    return "Object" == tag           ? describe(zvCfgObject())
           : "FileObject" == tag     ? describe(zvCfgFile())
           : "Lifecycle" == tag      ? zvCfgDescription::ofLifecycle(attributeValue("ObjectType"))
           : "ViewCollection" == tag ? zvCfgDescription::ofViewCollection(attributeValue("Name"))
                                     : outer;
}

void zvConfigurationDocument::checkExtension(const zvString& owner) {
    for (const char* const direction : {"Import", "Export"}) {
        zvString word;
        if (m_parser.getAttribute(direction, word) && "True" != word && "False" != word) {
            warn(zvCheckKind::unknownWord, owner, attributeValue("Name"),
                 zvString(direction) + " \"" + word + "\" counts as \"False\": only \"True\" allows");
        }
    }
}

void zvConfigurationDocument::checkAttributes(const zvString& tag, const zvString& owner) {
    if ("Attribute" == tag) {
        return;
    }
    const zvString index = attributeValue("Index");
    if (!index.empty() && !isWholeNumber(index)) {
        warn(zvCheckKind::unknownWord, owner, zvString(), "Index \"" + index + "\" is no whole number");
    }
    const Names& known = attributesOf(tag);
    zvStringList names;
    zvStringList values;
    m_parser.getAttributes(names, values);
    for (int i = 0; i < names.numStrings(); ++i) {
        const zvString name = names.getString(i);
        if (!isForEditors(name) && std::find(known.begin(), known.end(), name) == known.end()) {
            const std::string suggestion = zvNearestName::suggestion(name, known);
            warn(zvCheckKind::unknownAttribute, owner, zvString(),
                 "the attribute \"" + name + "\" is unknown in \"" + tag + "\" and not read" +
                     suggestion.c_str());
        }
    }
}

// Of the element that the cursor is on.
void zvConfigurationDocument::warn(std::string_view kind, const zvString& owner, const zvString& attribute,
                                   const zvString& text) {
    m_findings.push_back({zvFinding::Severity::warning, kind, owner, attribute,
                          m_parser.getPosition(m_parser.getCurrentNode()), text});
}
