#ifndef ZV_SPELLED_CHARACTER_H
#define ZV_SPELLED_CHARACTER_H

#include <cstddef>
#include <string_view>
#include <vector>

/// The spellings that a character can have in what a server sends back: as UTF-8, percent-encoded also twice,
/// as a form's "+", escaped for HTML or JSON, or as what a narrower encoding makes of it.
namespace zvSpelledCharacter {

/// In bytes, of one character.
constexpr std::size_t longest = 24;

/// Appends the position after each spelling of the character that begins at `at`.
void appendEnds(std::string_view text, std::size_t at, char32_t character, std::vector<std::size_t>& ends);

}  // namespace zvSpelledCharacter

#endif
