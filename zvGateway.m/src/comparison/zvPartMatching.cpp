#include "zvPartMatching.h"

#include <algorithm>
#include <deque>
#include <map>
#include <numeric>
#include <string>

namespace {

constexpr char separator = '\x1f';  // stands in no XML document

// All that the parts have, in their order.
void append(std::u16string& text, const zvString& value) {
    if (value.data() != nullptr) {
        text.append(value.data(), value.data() + value.size());
    }
    text += separator;
}

std::u16string contentOf(const zvComparedPart& object) {
    std::u16string content;
    append(content, object.ruleText);
    for (const zvComparedPart& part : object.parts) {
        for (const zvComparedPart::Property& property : part.properties) {
            content.append(property.name.begin(), property.name.end());
            append(content, property.value());
        }
    }
    return content;
}

std::u16string valueOf(const zvComparedPart& part, std::string_view name) {
    std::u16string text;
    const zvString* const value = part.find(name);
    if (value != nullptr && !value->empty()) {
        append(text, *value);
    }
    return text;
}

std::u16string typesOf(const zvComparedPart& object) {
    std::u16string types;
    append(types, *object.find("LocalCustType"));
    append(types, *object.find("RemoteCustType"));
    return types;
}

std::u16string typedContentOf(const zvComparedPart& object, const std::u16string& type) {
    return type.empty() ? type : type + contentOf(object);
}

bool haveSameNames(const zvComparedPart& left, const zvComparedPart& right) {
    const auto names = left.properties.begin();
    return left.kind == right.kind &&
           std::equal(names, names + static_cast<std::ptrdiff_t>(left.numNames), right.properties.begin(),
                      [](const auto& one, const auto& other) { return one.value() == other.value(); });
}

}  // namespace

zvPartMatching::zvPartMatching(const Parts& before, const Parts& after)
    : m_before(before), m_after(after), m_oldOf(after.size(), none), m_newOf(before.size(), none) {}

// Parts with the same key, which is not empty, belong together in their order.
template <class KeyOf>
void zvPartMatching::matchBy(KeyOf keyOf) {
    std::map<std::u16string, std::deque<std::size_t>> open;
    for (std::size_t i = 0; i < m_before.size(); ++i) {
        if (m_newOf[i] == none) {
            open[keyOf(m_before[i])].push_back(i);
        }
    }
    open.erase(std::u16string());
    if (open.empty()) {
        return;
    }
    for (std::size_t i = 0; i < m_after.size(); ++i) {
        if (m_oldOf[i] != none) {
            continue;
        }
        const auto found = open.find(keyOf(m_after[i]));
        if (found != open.end() && !found->second.empty()) {
            m_oldOf[i] = static_cast<int>(found->second.front());
            m_newOf[found->second.front()] = static_cast<int>(i);
            found->second.pop_front();
        }
    }
}

// Most parts of most configurations: nothing was added, removed, moved or renamed.
bool zvPartMatching::isSameSequence() const {
    return std::equal(m_before.begin(), m_before.end(), m_after.begin(), m_after.end(), haveSameNames);
}

void zvPartMatching::matchByNames() {
    if (isSameSequence()) {
        std::iota(m_oldOf.begin(), m_oldOf.end(), 0);
        std::iota(m_newOf.begin(), m_newOf.end(), 0);
        return;
    }
    constexpr std::size_t mostNames = 3;
    for (std::size_t i = 0; i < mostNames; ++i) {
        matchBy([i](const zvComparedPart& part) {
            std::u16string key;
            if (i < part.numNames && !part.properties[i].value().empty()) {
                key.assign(part.kind.begin(), part.kind.end());
                append(key, part.properties[i].value());
            }
            return key;
        });
    }
}

void zvPartMatching::matchObjects() {
    std::map<std::u16string, int> numWithTypes;
    for (const Parts* const objects : {&m_before, &m_after}) {
        std::map<std::u16string, int> count;
        for (const zvComparedPart& object : *objects) {
            int& most = numWithTypes[typesOf(object)];
            most = std::max(most, ++count[typesOf(object)]);
        }
    }
    const auto ambiguous = [&](const zvComparedPart& object) {
        const std::u16string types = typesOf(object);
        return numWithTypes[types] > 1 ? types : std::u16string();
    };
    matchBy([&](const zvComparedPart& object) { return typedContentOf(object, ambiguous(object)); });
    matchBy([&](const zvComparedPart& object) {
        std::u16string key = ambiguous(object);
        if (!key.empty()) {
            append(key, object.ruleText);
        }
        return key;
    });
    matchBy(typesOf);
    for (const std::string_view type : {"LocalCustType", "RemoteCustType"}) {
        matchBy(
            [type](const zvComparedPart& object) { return typedContentOf(object, valueOf(object, type)); });
    }
}
