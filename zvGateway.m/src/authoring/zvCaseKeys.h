#ifndef ZV_CASE_KEYS_H
#define ZV_CASE_KEYS_H

#include <optional>
#include <vector>

#include "zvYamlNode.h"

/// The faults of a file of cases. Of many faults the first ones are kept.
class zvCaseFaults {
public:
    void add(const zvTextPosition& position, const std::string& text);

    bool areNone() const { return m_count == 0; }
    std::size_t count() const { return m_count; }
    const std::vector<zvCaseFault>& first() const { return m_first; }

private:
    std::vector<zvCaseFault> m_first;
    std::size_t m_count = 0;
};

/// The values of a map by their keys. What is not as it is wanted becomes a fault with its place.
class zvCaseKeys {
public:
    /// Everything that it is given has to live longer. `known` are the keys that the map may have.
    zvCaseKeys(const zvYamlNode& map, const std::vector<zvString>& known, zvCaseFaults& faults);

    bool has(const zvString& key) const { return find(key) != nullptr; }
    /// The key's text; empty, and a fault, if it is no text.
    zvString text(const zvString& key) const;
    std::optional<zvString> optionalText(const zvString& key) const;
    /// A fault if the key is missing.
    zvString neededText(const zvString& key) const;
    /// False, and a fault, if it is neither "true" nor "false"; false for a key that is missing.
    bool flag(const zvString& key) const;
    std::vector<zvString> texts(const zvString& key) const;
    /// The key's map; null, and a fault, if it is none; null for a key that is missing.
    const zvYamlNode* map(const zvString& key) const;
    /// The key's list, in the same way.
    const zvYamlNode* list(const zvString& key) const;
    const zvYamlNode* find(const zvString& key) const;

    void fault(const zvString& key, const std::string& text) const;

private:
    const zvYamlNode* ofKind(const zvString& key, zvYamlNode::Kind kind, const char* word) const;

    const zvYamlNode& m_map;
    zvCaseFaults& m_faults;
};

/// The text of a node; nothing, and a fault, if it is none or nothing is written.
std::optional<zvString> textOf(const zvYamlNode& node, const zvString& name, zvCaseFaults& faults);

#endif
