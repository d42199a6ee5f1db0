#ifndef ZV_TYPES_H
#define ZV_TYPES_H

#include <cstdint>
#include <type_traits>

/// One UTF-16 code unit: the character type of zvString on every platform.
using wchar16 = unsigned short;

/// Seconds since 1970-01-01 00:00:00 UTC.
using zvInt64 = std::int64_t;

/// Whether `Type` is a pointer to anything but narrow or UTF-16 text. Where a text is expected it is refused:
/// otherwise it would silently be a Boolean.
template <typename Type>
constexpr bool zvIsOtherPointer = std::is_member_pointer_v<Type> ||
                                  (std::is_pointer_v<Type> && !std::is_convertible_v<Type, const char*> &&
                                   !std::is_convertible_v<Type, const wchar16*> &&
                                   !std::is_convertible_v<Type, const char16_t*>);

/// Whether `Type` is a character of another kind than narrow and UTF-16 text has. Where a text is expected it
/// is refused: otherwise it would silently be a number.
template <typename Type>
constexpr bool zvIsOtherCharacter = std::is_same_v<Type, char32_t> ||
                                    (std::is_same_v<Type, wchar_t> && !std::is_same_v<wchar_t, wchar16>);
#ifdef __cpp_char8_t
template <>
inline constexpr bool zvIsOtherCharacter<char8_t> = true;
#endif

#endif
