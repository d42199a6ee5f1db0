#include "zvYamlReader.h"

#include <yaml.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

#include "zvConsole.h"
#include "zvUtf8Text.h"

namespace {

constexpr int deepest = 8;

zvTextPosition positionOf(const yaml_mark_t& mark) {
    return {static_cast<int>(mark.line) + 1, static_cast<int>(mark.column) + 1};
}

class Events {
public:
    explicit Events(const std::string& document) : m_document(document) {
        if (yaml_parser_initialize(&m_parser) == 0) {
            throw std::bad_alloc();
        }
        yaml_parser_set_input_string(&m_parser, reinterpret_cast<const unsigned char*>(document.data()),
                                     document.size());
    }
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;
    ~Events() {
        yaml_event_delete(&m_event);
        yaml_parser_delete(&m_parser);
    }

    /// The next event, which lives until the one after it.
    const yaml_event_t& next() {
        yaml_event_delete(&m_event);
        if (yaml_parser_parse(&m_parser, &m_event) == 0) {
            throw zvCaseFault{faultPosition(), faultText()};
        }
        return m_event;
    }

private:
    // What is no text at all has no line of its own.
    zvTextPosition faultPosition() const {
        if (m_parser.error != YAML_READER_ERROR) {
            return positionOf(m_parser.problem_mark);
        }
        const std::size_t offset = std::min(m_parser.problem_offset, m_document.size());
        const auto end = m_document.begin() + static_cast<std::ptrdiff_t>(offset);
        return {static_cast<int>(std::count(m_document.begin(), end, '\n')) + 1, 0};
    }

    std::string faultText() const {
        const std::string problem = m_parser.problem == nullptr ? "no memory" : m_parser.problem;
        const std::string context = m_parser.context == nullptr ? "" : std::string(m_parser.context) + ": ";
        return "this is no YAML: " + context + problem;
    }

    const std::string& m_document;
    yaml_parser_t m_parser{};
    yaml_event_t m_event{};
};

class Reader {
public:
    Reader(const std::string& document, const zvString& key,
           const std::function<void(const zvYamlNode&)>& visit)
        : m_events(document), m_key(key), m_visit(visit) {}

    zvYamlNode read() {
        m_events.next();  // the beginning of the stream
        const yaml_event_t& first = m_events.next();
        if (first.type != YAML_DOCUMENT_START_EVENT) {
            throw zvCaseFault{{1, 1}, "the file is empty"};
        }
        zvYamlNode node = nodeOf(m_events.next(), 1);
        m_events.next();  // the end of the document
        const yaml_event_t& last = m_events.next();
        if (last.type != YAML_STREAM_END_EVENT) {
            throw zvCaseFault{positionOf(last.start_mark), "a second document begins here: one is read"};
        }
        return node;
    }

private:
    zvYamlNode nodeOf(const yaml_event_t& event, int depth) {
        zvYamlNode node;
        node.position = positionOf(event.start_mark);
        if (depth > deepest) {
            throw zvCaseFault{node.position, "it is nested too deeply"};
        }
        switch (event.type) {
            case YAML_SCALAR_EVENT:
                requirePlain(node, event.data.scalar.anchor, event.data.scalar.tag);
                readText(node, event.data.scalar);
                break;
            case YAML_SEQUENCE_START_EVENT:
                requirePlain(node, event.data.sequence_start.anchor, event.data.sequence_start.tag);
                node.kind = zvYamlNode::Kind::list;
                readItems(node, YAML_SEQUENCE_END_EVENT, depth);
                break;
            case YAML_MAPPING_START_EVENT:
                requirePlain(node, event.data.mapping_start.anchor, event.data.mapping_start.tag);
                node.kind = zvYamlNode::Kind::map;
                readItems(node, YAML_MAPPING_END_EVENT, depth);
                requireKeys(node);
                break;
            default:
                throw zvCaseFault{node.position, "aliases are not read: write the value again"};
        }
        return node;
    }

    static void requirePlain(const zvYamlNode& node, const yaml_char_t* anchor, const yaml_char_t* tag) {
        if (anchor != nullptr) {
            throw zvCaseFault{node.position, "anchors are not read: write the value where it is needed"};
        }
        if (tag != nullptr) {
            throw zvCaseFault{node.position, "tags are not read: every value is a text"};
        }
    }

    template <class Scalar>
    static void readText(zvYamlNode& node, const Scalar& scalar) {
        const std::string bytes(reinterpret_cast<const char*>(scalar.value), scalar.length);
        if (bytes.find('\0') != std::string::npos) {
            throw zvCaseFault{node.position, "a null character is no part of a text"};
        }
        node.text = fromUtf8(bytes);
        node.isMissing = bytes.empty() && scalar.style == YAML_PLAIN_SCALAR_STYLE;
    }

    void readItems(zvYamlNode& node, yaml_event_type_t end, int depth) {
        for (const yaml_event_t* event = &m_events.next(); event->type != end; event = &m_events.next()) {
            const bool isValue = node.items.size() % 2 != 0;
            if (depth == 1 && isValue && event->type == YAML_SEQUENCE_START_EVENT &&
                node.items.back().text == m_key) {
                node.items.push_back(visitItems(*event, depth + 1));
            } else {
                node.items.push_back(nodeOf(*event, depth + 1));
            }
        }
    }

    zvYamlNode visitItems(const yaml_event_t& begin, int depth) {
        zvYamlNode list;
        list.kind = zvYamlNode::Kind::list;
        list.position = positionOf(begin.start_mark);
        requirePlain(list, begin.data.sequence_start.anchor, begin.data.sequence_start.tag);
        for (const yaml_event_t* event = &m_events.next(); event->type != YAML_SEQUENCE_END_EVENT;
             event = &m_events.next()) {
            m_visit(nodeOf(*event, depth + 1));
        }
        return list;
    }

    static void requireKeys(const zvYamlNode& map) {
        std::vector<const zvYamlNode*> keys;
        keys.reserve(map.items.size() / 2);
        for (std::size_t i = 0; i < map.items.size(); i += 2) {
            keys.push_back(&map.items[i]);
            if (keys.back()->kind != zvYamlNode::Kind::text) {
                throw zvCaseFault{keys.back()->position, "a key has to be a text"};
            }
        }
        std::stable_sort(keys.begin(), keys.end(), [](const zvYamlNode* left, const zvYamlNode* right) {
            return left->text < right->text;
        });
        const auto twice = std::adjacent_find(
            keys.begin(), keys.end(),
            [](const zvYamlNode* left, const zvYamlNode* right) { return left->text == right->text; });
        if (twice != keys.end()) {
            const zvYamlNode& second = **std::next(twice);
            throw zvCaseFault{second.position,
                              "the key \"" + zvConsole::printable(second.text) + "\" stands here already"};
        }
    }

    Events m_events;
    const zvString& m_key;
    const std::function<void(const zvYamlNode&)>& m_visit;
};

}  // namespace

zvYamlNode zvYamlReader::read(const std::string& document, const zvString& key,
                              const std::function<void(const zvYamlNode&)>& visit) {
    return Reader(document, key, visit).read();
}
