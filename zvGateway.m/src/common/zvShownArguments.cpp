#include "zvShownArguments.h"

#include <map>

#include "zvCharString.h"
#include "zvConsole.h"
#include "zvSecrets.h"

namespace {

struct Longer {
    bool operator()(const std::string& left, const std::string& right) const {
        return left.size() != right.size() ? left.size() > right.size() : left < right;
    }
};

// What may be quoted, with its mask. The longest first: one may be a part of another.
using Masks = std::map<std::string, std::string, Longer>;
Masks ofCommandLine;
Masks ofEvent;

std::size_t afterSeparator(const std::string& argument) {
    const std::size_t separator = argument.find('=');
    return separator == std::string::npos ? argument.size() : separator + 1;
}

Masks masksOf(const std::vector<std::string>& arguments) {
    Masks masks;
    for (const std::string& argument : arguments) {
        // An option's value and an argument's may be quoted alone, and be an argument that was mistaken for
        // one.
        const std::string value = argument.substr(afterSeparator(argument));
        for (const std::string& text : {argument, value}) {
            const zvString wide = text.c_str();
            if (wide.find("=") != -1 && zvSecrets::keyIn(wide) != nullptr) {
                const std::string mask = zvCharString(zvSecrets::maskedArgument(wide)).data();
                masks.insert({{text, mask},
                              {zvConsole::printable(wide), mask},
                              {zvConsole::printablePath(wide), mask}});
            }
        }
    }
    return masks;
}

void mask(std::string& text, const Masks& masks) {
    for (const auto& [quoted, replacement] : masks) {
        for (std::size_t at = 0; (at = text.find(quoted, at)) != std::string::npos;
             at += replacement.size()) {
            text.replace(at, quoted.size(), replacement);
        }
    }
}

}  // namespace

void zvShownArguments::setCommandLine(const std::vector<std::string>& arguments) {
    ofCommandLine = masksOf(arguments);
}

void zvShownArguments::setEvent(const std::vector<std::string>& arguments) { ofEvent = masksOf(arguments); }

std::string zvShownArguments::masked(std::string text) {
    mask(text, ofCommandLine);
    mask(text, ofEvent);
    return text;
}
