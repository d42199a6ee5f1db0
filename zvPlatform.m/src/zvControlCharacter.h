#ifndef ZV_CONTROL_CHARACTER_H
#define ZV_CONTROL_CHARACTER_H

/// Whether a terminal or an editor obeys this character instead of showing it: control characters, ends of
/// lines and paragraphs, and those that turn the direction of what follows.
constexpr bool zvIsControlCharacter(char32_t character) {
    constexpr struct {
        char32_t first;
        char32_t last;
    } ranges[] = {{0x0000, 0x001F}, {0x007F, 0x009F}, {0x061C, 0x061C},
                  {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};
    for (const auto& range : ranges) {
        if (character >= range.first && character <= range.last) {
            return true;
        }
    }
    return false;
}

#endif
