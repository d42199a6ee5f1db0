#include "zvClientConfigFile.h"

#include <algorithm>
#include <sstream>

#include "zvHomeFile.h"

zvClientConfigFile::zvClientConfigFile(const std::string& content) {
    int number = 0;
    std::istringstream stream(content);
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (!line.empty() && line.front() != '#') {
            m_lines.push_back(read(line, number));
        }
    }
}

zvClientConfigFile zvClientConfigFile::ofHome() {
    return zvClientConfigFile(zvHomeFile::readConfiguration("client-config.ini"));
}

// A line may end as on Windows, where the library takes an empty one for a fault.
zvClientConfigFile::Line zvClientConfigFile::read(const std::string& line, int number) const {
    const std::size_t separator = line.find('=');
    if (separator == std::string::npos || separator == 0 || separator + 1 == line.size()) {
        return {number, {}, {}, Fault::noPair, 0};
    }
    const zvString name = line.substr(0, separator).c_str();
    zvString value = line.substr(separator + 1).c_str();
    if (name.empty() || value.empty()) {
        return {number, {}, {}, Fault::noText, 0};
    }
    if (value[value.size() - 1] == u'\r') {
        value = value.substr(0, value.size() - 1);
    }
    const Line* const first = find(name);
    return {number, name, value, first == nullptr ? Fault::none : Fault::repeatedKey,
            first == nullptr ? 0 : first->number};
}

const zvClientConfigFile::Line* zvClientConfigFile::find(const zvString& key) const {
    const auto found =
        std::find_if(m_lines.begin(), m_lines.end(), [&key](const Line& line) { return line.name == key; });
    return found == m_lines.end() ? nullptr : &*found;
}

std::optional<zvString> zvClientConfigFile::value(const zvString& key) const {
    const Line* const line = find(key);
    if (line == nullptr) {
        return std::nullopt;
    }
    zvString value = line->value;
    value.trim();
    return value;
}

const zvClientConfigFile::Line* zvClientConfigFile::firstFaulty() const {
    const auto found = std::find_if(m_lines.begin(), m_lines.end(),
                                    [](const Line& line) { return line.fault != Fault::none; });
    return found == m_lines.end() ? nullptr : &*found;
}

zvString zvClientConfigFile::Line::faultText() const {
    switch (fault) {
        case Fault::noPair:
            return "it is no name=value, and ends the reading: what follows does not count";
        case Fault::noText:
            return "its bytes are no text in the locale's encoding";
        case Fault::repeatedKey:
            return "\"" + name + "\" is in line " + zvString(firstNumber) +
                   " already, which counts; what follows may not be read";
        default:
            return {};
    }
}
