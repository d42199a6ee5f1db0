#include "zvComparedPart.h"

#include <algorithm>

namespace {

zvString toText(std::string_view word) { return {word.data(), static_cast<int>(word.size())}; }

}  // namespace

zvString zvComparedPart::title() const {
    if (!ownTitle.empty()) {
        return ownTitle;
    }
    const auto named = std::find_if(properties.begin(), properties.end(),
                                    [](const Property& property) { return !property.value().empty(); });
    return toText(kind) + " \"" + (named == properties.end() ? zvString() : named->value()) + "\"";
}

const zvString* zvComparedPart::find(std::string_view name) const {
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [name](const Property& property) { return property.name == name; });
    return found == properties.end() ? nullptr : &found->value();
}

zvString zvComparedPart::description() const {
    zvString text;
    if (kind == "transition") {
        return text;  // its title says all
    }
    for (const Property& property : properties) {
        if (!property.value().empty()) {
            text += (text.empty() ? "" : ", ") + toText(property.name) + " \"" + property.value() + "\"";
        }
    }
    return text;
}
