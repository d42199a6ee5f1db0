#include "zvJavaProperties.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

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

// The text from `place` to one of `ends` that has no backslash before it, or to the line's end; `place` is
// moved there.
std::string textUntil(const char* ends, const std::string& line, std::size_t& place) {
    std::string bytes;
    for (; place < line.size() && std::strchr(ends, line[place]) == nullptr; ++place) {
        bytes += line[place] == '\\' ? unescaped(line, place) : std::string(1, line[place]);
    }
    return bytes;
}

// Past the blanks between a key and its value, with one "=" or ":" among them.
std::size_t afterSeparator(const std::string& line, std::size_t place) {
    place = std::min(line.find_first_not_of(blanks, place), line.size());
    if (place < line.size() && (line[place] == '=' || line[place] == ':')) {
        place = std::min(line.find_first_not_of(blanks, place + 1), line.size());
    }
    return place;
}

zvString toText(const std::string& bytes) {
    zvString text;
    zvUtf8::decode(bytes, text);
    return text;
}

}  // namespace

std::vector<zvJavaProperties::Entry> zvJavaProperties::entriesOf(const std::string& content) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const bool isMarked = content.compare(0, byteOrderMark.size(), byteOrderMark) == 0;
    const std::vector<std::string> lines =
        zvHomeFile::lines(content.substr(isMarked ? byteOrderMark.size() : 0));
    std::vector<Entry> entries;
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
        std::size_t place = 0;
        const zvString name = toText(textUntil(" \t\f=:", line, place));
        place = afterSeparator(line, place);
        entries.push_back({name, toText(textUntil("", line, place)), position});
    }
    return entries;
}
