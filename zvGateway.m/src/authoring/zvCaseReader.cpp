#include "zvCaseReader.h"

#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvTypedValue.h"
#include "zvUtf8.h"

namespace {

// One of the words by which a configuration names types; a fault if it is none.
zvDataTypeEnum typeIn(const zvCaseKeys& keys) {
    const std::string word = zvUtf8::encode(keys.text("type"));
    const zvDataTypeEnum type = zvDataTypeWords::typeOf(std::u16string(word.begin(), word.end()));
    if (keys.has("type") && type == zvDataTypeNone) {
        keys.fault("type", "has to be Integer, Float, String, Date or Boolean");
    }
    return type;
}

void requireOneOf(const zvCaseKeys& keys, const zvString& one, const zvString& other) {
    if (keys.has(one) == keys.has(other)) {
        keys.fault(one, "or \"" + zvConsole::printable(other) + "\" is needed, and not both");
    }
}

// A name and a text a line.
zvObjectMapping::Values valuesIn(const zvYamlNode* map, zvCaseFaults& faults) {
    zvObjectMapping::Values values;
    for (std::size_t i = 0; map != nullptr && i < map->items.size(); i += 2) {
        const zvString& name = map->items[i].text;
        values.emplace(name, textOf(map->items[i + 1], name, faults).value_or(zvString()));
    }
    return values;
}

// A text, or a map with its type and whether it is the default.
zvExpectedAttribute expectedIn(const zvYamlNode& node, const zvString& name, zvCaseFaults& faults) {
    if (node.kind != zvYamlNode::Kind::map) {
        return {textOf(node, name, faults).value_or(zvString()), zvDataTypeNone, false};
    }
    const zvCaseKeys keys(node, {"value", "default", "type"}, faults);
    requireOneOf(keys, "value", "default");
    const bool isDefault = keys.has("default");
    return {keys.text(isDefault ? "default" : "value"), typeIn(keys), isDefault};
}

zvObjectCase readObject(const zvCaseKeys& keys, zvCaseFaults& faults) {
    zvObjectCase read;
    read.object = {keys.text("local"), keys.text("remote"), valuesIn(keys.map("attributes"), faults)};
    requireOneOf(keys, "gives", "refused");
    read.refused = keys.optionalText("refused");
    read.type = keys.text("gives");
    read.leftOut = keys.texts("left-out");
    if (keys.has("refused") && (keys.has("with") || keys.has("left-out"))) {
        keys.fault("refused", "leaves nothing that \"with\" or \"left-out\" could say");
    }
    const zvYamlNode* const with = keys.map("with");
    for (std::size_t i = 0; with != nullptr && i < with->items.size(); i += 2) {
        const zvString& name = with->items[i].text;
        read.attributes.emplace(name, expectedIn(with->items[i + 1], name, faults));
    }
    return read;
}

zvConditionCase readCondition(const zvCaseKeys& keys, zvCaseFaults& faults) {
    zvConditionCase read;
    read.condition = keys.text("condition");
    requireOneOf(keys, "holds", "refused");
    read.refused = keys.optionalText("refused");
    read.holds = keys.flag("holds");
    const zvYamlNode* const attributes = keys.map("attributes");
    for (std::size_t i = 0; attributes != nullptr && i < attributes->items.size(); i += 2) {
        const zvString& name = attributes->items[i].text;
        const zvYamlNode& node = attributes->items[i + 1];
        if (node.kind != zvYamlNode::Kind::map) {
            read.attributes.emplace_back(name, zvValue(textOf(node, name, faults).value_or(zvString())));
            continue;
        }
        const zvCaseKeys typed(node, {"value", "type"}, faults);
        const zvString value = typed.neededText("value");
        const zvDataTypeEnum type = typeIn(typed);
        read.attributes.emplace_back(name,
                                     toTypedValue(value, type == zvDataTypeNone ? zvDataTypeString : type));
    }
    return read;
}

zvLifecycleCase readLifecycle(const zvCaseKeys& keys, zvCaseFaults&) {
    zvLifecycleCase read{keys.text("lifecycle"), keys.neededText("from"), keys.neededText("to"), {}};
    const zvYamlNode* const way = keys.find("way");
    if (way == nullptr) {
        keys.fault("way", "is missing: a list, as in [Promote FROZEN], or none");
    } else if (way->kind != zvYamlNode::Kind::text || way->text != "none") {
        read.way = keys.texts("way");
    }
    return read;
}

zvFileCase readFile(const zvCaseKeys& keys, zvCaseFaults&) {
    zvFileCase read{keys.text("file"), keys.neededText("of"), keys.flag("import"), keys.flag("export"),
                    keys.text("mode")};
    for (const char* const key : {"import", "export"}) {
        if (!keys.has(key)) {
            keys.fault(key, "is missing: true or false");
        }
    }
    if (keys.has("mode") && read.mode != "BINARY" && read.mode != "ASCII") {
        keys.fault("mode", "has to be BINARY or ASCII");
    }
    return read;
}

// The keys of each kind of case. The first ones say of which kind a case is.
const std::vector<zvString>& keysOf(const char* kind) {
    static const std::vector<zvString> object = {"local", "remote",   "attributes", "gives",
                                                 "with",  "left-out", "refused",    "name"};
    static const std::vector<zvString> condition = {"condition", "attributes", "holds", "refused", "name"};
    static const std::vector<zvString> lifecycle = {"lifecycle", "from", "to", "way", "name"};
    static const std::vector<zvString> file = {"file", "of", "import", "export", "mode", "name"};
    const zvString word = kind;
    return word == "condition" ? condition : word == "lifecycle" ? lifecycle : word == "file" ? file : object;
}

const char* kindOf(const zvYamlNode& map) {
    for (std::size_t i = 0; i < map.items.size(); i += 2) {
        for (const char* const kind : {"local", "remote", "condition", "lifecycle", "file"}) {
            if (map.items[i].text == kind) {
                return kind;
            }
        }
    }
    return nullptr;
}

}  // namespace

zvCase zvCaseReader::read(const zvYamlNode& node, zvCaseFaults& faults) {
    zvCase read;
    read.line = node.position.line;
    const char* const kind = node.kind == zvYamlNode::Kind::map ? kindOf(node) : nullptr;
    if (kind == nullptr) {
        faults.add(node.position,
                   "this is no case: it has none of local, remote, condition, lifecycle and file");
        return read;
    }
    const zvCaseKeys keys(node, keysOf(kind), faults);
    read.name = keys.text("name");
    const zvString word = kind;
    if (word == "condition") {
        read.content = readCondition(keys, faults);
    } else if (word == "lifecycle") {
        read.content = readLifecycle(keys, faults);
    } else if (word == "file") {
        read.content = readFile(keys, faults);
    } else {
        read.content = readObject(keys, faults);
    }
    return read;
}
