#include "zvJavaProperties.h"

#include <cstdlib>

#include "zvHomeFile.h"
#include "zvUtf8.h"

namespace {

constexpr char blanks[] = " \t\f";

// A line that ends in an odd number of backslashes goes on in the next one.
bool goesOn(const std::string& line) {
    const std::size_t last = line.find_last_not_of('\\');
    const std::size_t backslashes = line.size() - (last == std::string::npos ? 0 : last + 1);
    return backslashes % 2 != 0;
}

std::string withoutIndent(const std::string& line) {
    const std::size_t first = line.find_first_not_of(blanks);
    return first == std::string::npos ? "" : line.substr(first);
}

// What stands for a character: the one behind a backslash at `place`, which is moved to its end.
std::string unescaped(const std::string& line, std::size_t& place) {
    constexpr std::size_t digits = 4;
    constexpr int hexadecimal = 16;
    ++place;
    if (place >= line.size() || line[place] != 'u') {
        return place < line.size() ? std::string(1, line[place]) : "";
    }
    const std::string code = line.substr(place + 1, digits);
    place += code.size();
    const wchar16 unit[] = {static_cast<wchar16>(std::strtoul(code.c_str(), nullptr, hexadecimal)), 0};
    return zvUtf8::encode(zvString(unit));
}

std::string keyOf(const std::string& line) {
    std::string key;
    for (std::size_t i = 0; i < line.size() && std::string(" \t\f=:").find(line[i]) == std::string::npos;
         ++i) {
        key += line[i] == '\\' ? unescaped(line, i) : std::string(1, line[i]);
    }
    return key;
}

}  // namespace

std::vector<zvJavaProperties::Key> zvJavaProperties::keysOf(const std::string& content) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const bool isMarked = content.compare(0, byteOrderMark.size(), byteOrderMark) == 0;
    const std::vector<std::string> lines =
        zvHomeFile::lines(content.substr(isMarked ? byteOrderMark.size() : 0));
    std::vector<Key> keys;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const zvTextPosition position{static_cast<int>(i) + 1,
                                      static_cast<int>(lines[i].size() - withoutIndent(lines[i]).size()) + 1};
        std::string line = withoutIndent(lines[i]);
        if (line.empty() || line[0] == '#' || line[0] == '!') {
            continue;
        }
        while (goesOn(line) && i + 1 < lines.size()) {
            line.pop_back();
            line += withoutIndent(lines[++i]);
        }
        Key key{zvString(), position};
        zvUtf8::decode(keyOf(line), key.name);
        keys.push_back(key);
    }
    return keys;
}
