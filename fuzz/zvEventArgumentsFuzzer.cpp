// Parses event arguments in both forms: each line as one argument, and the whole input as one string.
#include <map>
#include <memory>

#include "zvEventArguments.h"
#include "zvFuzzSupport.h"

using zvFuzz::require;

namespace {

struct Destroy {
    void operator()(zvEventArguments* arguments) const { arguments->destroy(); }
};
using Arguments = std::unique_ptr<zvEventArguments, Destroy>;

const std::string loginPassword = std::string("LoginPassword=") + zvFuzz::secret;

// The reference implementation: `\=` is an escaped "=" in the key.
void split(std::string argument, std::map<std::string, std::string>& expected) {
    std::size_t separator = argument.find('=');
    while (separator != std::string::npos && separator > 0 && argument[separator - 1] == '\\') {
        argument.erase(separator - 1, 1);
        separator = argument.find('=', separator);
    }
    if (separator != std::string::npos && separator > 0) {
        expected.emplace(argument.substr(0, separator), argument.substr(separator + 1));
    }
}

void checkCommandLine(std::string_view input) {
    std::vector<std::string> lines = zvFuzz::linesOf(input);
    lines.push_back(loginPassword);
    std::vector<char*> argv = {nullptr};
    std::map<std::string, std::string> expected;
    for (std::string& line : lines) {
        line.resize(line.find('\0') == std::string::npos ? line.size() : line.find('\0'));
        argv.push_back(line.data());
        if (!zvString(line.c_str()).empty()) {
            split(line, expected);
        }
    }
    const Arguments arguments(
        zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
    require(arguments->numEventArguments() == static_cast<int>(expected.size()), "all arguments are there");
    for (const auto& [key, value] : expected) {
        require(zvFuzz::narrow(arguments->getEventArgumentValue(key.c_str())) == value,
                "values are as written");
    }
}

void checkText(std::string_view input) {
    const std::string text = '"' + std::string(input) + "\" \"" + loginPassword + '"';
    const Arguments arguments(zvEventArguments::parseEventArguments(zvFuzz::textOf(text)));
    for (int i = 0; i < arguments->numEventArguments(); ++i) {
        const zvString key = arguments->getEventArgumentNameAt(i);
        require(!key.empty(), "no key is empty");
        require(arguments->getEventArgumentValue(key) == arguments->getEventArgumentValueAt(i),
                "a key has one value");
    }
    const Arguments bare(zvEventArguments::parseEventArguments(zvFuzz::textOf(input)));
    zvEventArguments relative(zvEventMirror, "");
    zvEventArguments::populateEventArguments(*bare, relative);
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    if (input.find(zvFuzz::secret) != std::string_view::npos) {
        return;
    }
    checkCommandLine(input);
    checkText(input);
    require(!zvFuzz::secretWasLogged(), "no secret is logged");
}
