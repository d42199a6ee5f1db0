#include "zvConfigurationDocument.h"

#include "zvConfigurationNames.h"

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

struct Need {
    const char* tag;
    const char* child;
    const char* complaint;
};

constexpr Need needs[] = {
    {"ViewCollection", "View", "it has no view, and so no default view"},
    {"Lifecycle", "LifecycleGraph", "it has no graph"},
    {"LifecycleGraph", "LcmState", "its graph has no state"},
    {"FileObject", "AllowedExtns", "it allows no file extension"},
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
        readElement(root, "");
    }
}

std::string zvConfigurationDocument::objectAt(int i) const {
    return i >= 0 && i < static_cast<int>(m_objects.size()) ? m_objects[static_cast<std::size_t>(i)] : "";
}

// The cursor is on an element that is read. As deep as the table, whatever the file.
void zvConfigurationDocument::readElement(const zvString& tag, const std::string& outer) {
    const std::string owner = ownerAt(tag, outer);
    if ("Extn" == tag) {
        checkExtension(owner);
    }
    const Need* const need = needOf(tag);
    bool isMet = need == nullptr;
    zvString child;
    if (m_parser.getFirstChild(child)) {
        do {
            isMet = isMet || need->child == child;
            if (isRead(tag, child)) {
                readElement(child, owner);
            } else {
                warn(owner, "the element " + zvConfigurationNames::quoted(child) + " in " +
                                zvConfigurationNames::quoted(tag) + " is not known and not read");
            }
        } while (m_parser.getNextSibling(child));
        zvString parent;
        m_parser.getParent(parent);
    }
    if (!isMet) {
        warn(owner, need->complaint);
    }
}

// What a finding in the element is told to be in.
std::string zvConfigurationDocument::ownerAt(const zvString& tag, const std::string& outer) {
    const auto value = [this](const char* name) {
        zvString text;
        static_cast<void>(m_parser.getAttribute(name, text));
        return text;
    };
    if ("Object" == tag || "FileObject" == tag) {
        m_objects.push_back(("Object" == tag ? "object " : "file object ") +
                            zvConfigurationNames::types(value("LocalCustType"), value("RemoteCustType")));
        return m_objects.back();
    }
    if ("Lifecycle" == tag) {
        return "lifecycle " + zvConfigurationNames::quoted(value("ObjectType"));
    }
    if ("ViewCollection" == tag) {
        return "view collection " + zvConfigurationNames::quoted(value("Name"));
    }
    return outer;
}

void zvConfigurationDocument::checkExtension(const std::string& owner) {
    for (const char* const direction : {"Import", "Export"}) {
        zvString word;
        if (m_parser.getAttribute(direction, word) && "True" != word && "False" != word) {
            zvString name;
            static_cast<void>(m_parser.getAttribute("Name", name));
            warn(owner, "extension " + zvConfigurationNames::quoted(name) + ": " + direction + " " +
                            zvConfigurationNames::quoted(word) + R"( counts as "False": only "True" allows)");
        }
    }
}

void zvConfigurationDocument::warn(const std::string& owner, const std::string& what) {
    m_findings.push_back({zvFinding::Severity::warning, owner, what});
}
