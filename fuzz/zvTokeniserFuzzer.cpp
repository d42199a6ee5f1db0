// Input: a delimiter, a line feed and the text. Tokenises in the three modes and compares with a reference.
#include <algorithm>

#include "zvFuzzSupport.h"
#include "zvStringTokeniser.h"

using zvFuzz::require;

namespace {

using Text = std::u16string;
using Texts = std::vector<Text>;

// Splits `text` at every delimiter of that length that `next(text, from)` finds, empty pieces included.
template <typename Next>
Texts cut(const Text& text, std::size_t length, Next next) {
    Texts pieces;
    std::size_t from = 0;
    for (std::size_t at = next(text, from); at != Text::npos; at = next(text, from)) {
        pieces.push_back(text.substr(from, at - from));
        from = at + length;
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

Texts withoutEmpty(Texts pieces) {
    pieces.erase(std::remove(pieces.begin(), pieces.end(), Text()), pieces.end());
    return pieces;
}

// By a character: empty pieces are tokens, except leading ones and the one after a trailing delimiter.
Texts withoutOuterEmpty(Texts pieces) {
    const auto isText = [](const Text& piece) { return !piece.empty(); };
    pieces.erase(pieces.begin(), std::find_if(pieces.begin(), pieces.end(), isText));
    if (!pieces.empty() && pieces.back().empty()) {
        pieces.pop_back();
    }
    return pieces;
}

void check(zvStringTokeniser&& tokeniser, const Texts& expected) {
    tokeniser.tokenise();
    require(tokeniser.getNumTokens() == static_cast<int>(expected.size()), "all tokens are there");
    for (std::size_t i = 0; i < expected.size(); ++i) {
        require(zvFuzz::unitsOf(tokeniser.getToken(static_cast<int>(i))) == expected[i],
                "tokens are what stands between the delimiters");
    }
    require(tokeniser.getToken(static_cast<int>(expected.size())).empty(),
            "there is nothing behind the last");
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    const std::size_t lineFeed = input.find('\n');
    if (lineFeed == 0 || lineFeed == std::string_view::npos) {
        return;
    }
    const std::string delimiter(input.substr(0, lineFeed));
    const zvString source = zvFuzz::textOf(input.substr(lineFeed + 1));
    const Text text = zvFuzz::unitsOf(source);
    const Text delimiters = zvFuzz::unitsOf(zvString(delimiter.c_str()));
    const auto character = static_cast<char16_t>(static_cast<signed char>(delimiter[0]));

    check(zvStringTokeniser(source, delimiter[0]),
          withoutOuterEmpty(cut(
              text, 1, [character](const Text& t, std::size_t from) { return t.find(character, from); })));
    check(zvStringTokeniser(source, delimiter.c_str(), false),
          withoutEmpty(cut(text, 1, [&delimiters](const Text& t, std::size_t from) {
              return t.find_first_of(delimiters, from);
          })));
    check(zvStringTokeniser(source, delimiter.c_str(), true),
          withoutEmpty(cut(text, delimiters.size(), [&delimiters](const Text& t, std::size_t from) {
              return delimiters.empty() ? Text::npos : t.find(delimiters, from);
          })));
}
