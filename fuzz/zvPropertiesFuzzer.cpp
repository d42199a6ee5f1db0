// Parses a properties file and compares the result with a reference implementation.
#include <map>

#include "zvFuzzSupport.h"
#include "zvProperties.h"

using zvFuzz::require;

namespace {

using Properties = std::map<std::string, std::string>;

// The reference implementation; undecodable lines are left out.
Properties propertiesIn(std::string_view input) {
    Properties properties;
    for (const std::string& line : zvFuzz::linesOf(input)) {
        if (zvString(line.c_str()).empty() || line.front() == '#') {
            continue;
        }
        const std::size_t separator = line.find('=');
        const bool good = separator != std::string::npos && separator > 0 && separator + 1 < line.size();
        if (!good || !properties.emplace(line.substr(0, separator), line.substr(separator + 1)).second) {
            break;
        }
    }
    return properties;
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    zvProperties properties;
    require(properties.parse(zvFuzz::fileOf(input).c_str()).isOk(), "a file that is there is read");
    if (input.find('\0') != std::string_view::npos) {
        return;  // a zero byte truncates its line, or a piece of it
    }
    const Properties expected = propertiesIn(input);
    zvStringList names;
    require(properties.getAllPropertyNames(names) != expected.empty(), "there are properties");
    require(names.numStrings() == static_cast<int>(expected.size()), "all properties are there");
    for (const auto& [name, value] : expected) {
        require(zvFuzz::narrow(properties.getPropertyValue(name.c_str())) == value, "values are as written");
    }
}
