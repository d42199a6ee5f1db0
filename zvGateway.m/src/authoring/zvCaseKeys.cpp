#include "zvCaseKeys.h"

#include <algorithm>

#include "zvConsole.h"
#include "zvNearestName.h"

namespace {

constexpr std::size_t mostKept = 20;

std::string quoted(const zvString& text) { return '"' + zvConsole::printable(text) + '"'; }

}  // namespace

void zvCaseFaults::add(const zvTextPosition& position, const std::string& text) {
    ++m_count;
    if (m_first.size() < mostKept) {
        m_first.push_back({position, text});
    }
}

std::optional<zvString> textOf(const zvYamlNode& node, const zvString& name, zvCaseFaults& faults) {
    if (node.kind != zvYamlNode::Kind::text) {
        faults.add(node.position, quoted(name) + " has to be a text");
        return std::nullopt;
    }
    if (node.isMissing) {
        faults.add(node.position, quoted(name) + " has no value; an empty one is written \"\"");
        return std::nullopt;
    }
    return node.text;
}

zvCaseKeys::zvCaseKeys(const zvYamlNode& map, const std::vector<zvString>& known, zvCaseFaults& faults)
    : m_map(map), m_faults(faults) {
    for (std::size_t i = 0; i < map.items.size(); i += 2) {
        const zvString& key = map.items[i].text;
        if (std::find(known.begin(), known.end(), key) == known.end()) {
            faults.add(map.items[i].position,
                       "there is no key " + quoted(key) + " here" + zvNearestName::suggestion(key, known));
        }
    }
}

const zvYamlNode* zvCaseKeys::find(const zvString& key) const {
    for (std::size_t i = 0; i < m_map.items.size(); i += 2) {
        if (m_map.items[i].text == key) {
            return &m_map.items[i + 1];
        }
    }
    return nullptr;
}

void zvCaseKeys::fault(const zvString& key, const std::string& text) const {
    const zvYamlNode* const node = find(key);
    m_faults.add(node == nullptr ? m_map.position : node->position, quoted(key) + " " + text);
}

std::optional<zvString> zvCaseKeys::optionalText(const zvString& key) const {
    const zvYamlNode* const node = find(key);
    return node == nullptr ? std::nullopt : textOf(*node, key, m_faults);
}

zvString zvCaseKeys::text(const zvString& key) const { return optionalText(key).value_or(zvString()); }

zvString zvCaseKeys::neededText(const zvString& key) const {
    if (!has(key)) {
        fault(key, "is missing");
    }
    return text(key);
}

bool zvCaseKeys::flag(const zvString& key) const {
    const zvYamlNode* const node = find(key);
    if (node == nullptr) {
        return false;
    }
    const zvString word = node->kind == zvYamlNode::Kind::text ? node->text : zvString();
    if (word != "true" && word != "false") {
        fault(key, "has to be true or false");
    }
    return word == "true";
}

std::vector<zvString> zvCaseKeys::texts(const zvString& key) const {
    std::vector<zvString> texts;
    if (const zvYamlNode* const found = list(key)) {
        for (const zvYamlNode& item : found->items) {
            texts.push_back(textOf(item, key, m_faults).value_or(zvString()));
        }
    }
    return texts;
}

const zvYamlNode* zvCaseKeys::map(const zvString& key) const {
    return ofKind(key, zvYamlNode::Kind::map, "a map: a name and a value a line");
}

const zvYamlNode* zvCaseKeys::list(const zvString& key) const {
    return ofKind(key, zvYamlNode::Kind::list, "a list");
}

const zvYamlNode* zvCaseKeys::ofKind(const zvString& key, zvYamlNode::Kind kind, const char* word) const {
    const zvYamlNode* const node = find(key);
    if (node != nullptr && node->kind != kind) {
        fault(key, std::string("has to be ") + word);
        return nullptr;
    }
    return node;
}
