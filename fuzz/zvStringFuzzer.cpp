// Conversions between narrow and wide text, and string operations compared with those of std::u16string.
#include <fuzzer/FuzzedDataProvider.h>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "zvFuzzSupport.h"

using zvFuzz::require;

namespace {

using Text = std::u16string;

void checkNarrow(const std::string& bytes) {
    wchar16* wide = nullptr;
    const int units = zvString::convertStringToUnicode(bytes.c_str(), INT_MAX, wide);
    require((wide == nullptr) == (units == 0), "a conversion without a result gives no buffer");
    char* back = zvString::convertUnicodeToString(wide);
    require(wide == nullptr || std::strcmp(back, bytes.c_str()) == 0,
            "narrow text comes back from wide text");
    zvString::releaseString(back);
    zvString::releaseUnicode(wide);

    const zvString some(bytes.c_str(), static_cast<int>(bytes.size() / 2));
    require(some.size() <= static_cast<int>(bytes.size() / 2), "no more is read than asked for");
}

void checkWide(const Text& text) {
    const zvString wide(text.c_str());
    const char* const narrow = wide.getChars();
    if (narrow != nullptr) {
        require(zvFuzz::unitsOf(zvString(narrow)) == zvFuzz::unitsOf(wide),
                "wide text comes back from narrow text");
    }
    wchar16* lower = zvString::convertToLowerCase(wide.data());
    zvString lowered(wide);
    lowered.toLower();
    require(zvString(lower) == lowered, "both ways to lower case are the same");
    require(wide.equalsIgnoreCase(lowered), "case is ignored");
    zvString::releaseUnicode(lower);
}

void checkNumbers(const std::string& bytes) {
    const zvString text(bytes.c_str());
    const int number = zvString::convertUnicodeToInt(text);
    require(zvString::convertUnicodeToInt(zvString(number)) == number, "an integer comes back from its text");
    require(zvString::convertUnicodeToBool(text) == (number != 0), "a number other than 0 is true");
    const double real = zvString::convertUnicodeToDouble(text);
    const zvString written(real);
    if (!written.empty() && std::isfinite(real)) {
        require(zvString(zvString::convertUnicodeToDouble(written)) == written,
                "a float comes back from its text");
    }
}

void checkSearch(const zvString& text, const zvString& piece, int start, int end) {
    const Text units = zvFuzz::unitsOf(text);
    const Text wanted = zvFuzz::unitsOf(piece);
    const int at = text.find(piece, start, end);
    require(at == -1 || text.substr(at, piece.size()) == piece, "what is found is there");
    require((text.count(piece, start, end) > 0) == (at != -1), "what is counted is found");
    const std::size_t first = wanted.empty() ? Text::npos : units.find(wanted);
    require(text.find(piece) == (first == Text::npos ? -1 : static_cast<int>(first)),
            "the first one is found");
    const std::size_t last = wanted.empty() ? Text::npos : units.rfind(wanted);
    require(text.reverseFind(piece) == (last == Text::npos ? -1 : static_cast<int>(last)),
            "the last one is found");
    const int backwards = text.reverseFindNoCase(piece, end, start);
    require(backwards == -1 || text.substr(backwards, piece.size()).equalsIgnoreCase(piece),
            "what is found backwards is there");
}

void checkReplace(const zvString& text, const zvString& from, const zvString& to) {
    const Text wanted = zvFuzz::unitsOf(from);
    const Text units = zvFuzz::unitsOf(text);
    Text result;
    int expected = 0;
    std::size_t copied = 0;
    if (!wanted.empty() && from != to) {
        const Text other = zvFuzz::unitsOf(to);
        for (std::size_t at = units.find(wanted); at != Text::npos; at = units.find(wanted, copied)) {
            result.append(units, copied, at - copied).append(other);
            copied = at + wanted.size();
            ++expected;
        }
    }
    result.append(units, copied);
    zvString replaced(text);
    require(replaced.replace(from, to) == expected, "every match is replaced");
    require(zvFuzz::unitsOf(replaced) == result, "matches are replaced and nothing else");
    zvString noCase(text);
    require(noCase.replaceNoCase(from, to) == (from == to ? 0 : text.countNoCase(from)),
            "every match of any case is replaced");
}

void checkChanges(const zvString& text, const zvString& piece, int position) {
    zvString changed(text);
    const bool inserted = changed.insert(piece, position);
    require(changed.size() == text.size() + (inserted ? piece.size() : 0), "an insertion makes room");
    require(!inserted || changed.substr(position, piece.size()) == piece, "an insertion is where it was put");
    zvString twice(text);
    twice.reverse();
    twice.reverse();
    require(twice == text, "reversed twice is as before");
    changed = text;
    changed.trim();
    zvString again(changed);
    again.trim();
    require(again == changed, "trimmed twice is trimmed once");
    require(changed.empty() || text.find(changed) != -1, "what was trimmed was a part of the text");
    require(zvFuzz::unitsOf(text + piece) == zvFuzz::unitsOf(text) + zvFuzz::unitsOf(piece),
            "a sum is one text behind the other");
    require(!(text < piece && piece < text), "texts have an order");
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    FuzzedDataProvider data(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    const int start = data.ConsumeIntegral<std::int8_t>();
    const int end = data.ConsumeIntegral<std::int8_t>();
    const std::string piece = data.ConsumeRandomLengthString(64);
    const std::string other = data.ConsumeRandomLengthString(64);
    const std::string rest = data.ConsumeRemainingBytesAsString();
    const zvString text = zvFuzz::textOf(rest);

    checkNarrow(rest);
    checkWide(zvFuzz::unitsOf(std::string_view(rest)));
    checkNumbers(rest);
    checkSearch(text, zvFuzz::textOf(piece), start, end);
    checkReplace(text, zvFuzz::textOf(piece), zvFuzz::textOf(other));
    checkChanges(text, zvFuzz::textOf(piece), start);
}
