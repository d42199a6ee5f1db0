#ifndef ZV_STRING_H
#define ZV_STRING_H

#include <type_traits>

#include "zvExport.h"
#include "zvTypes.h"

/// The library's string class: UTF-16 code units in a null-terminated buffer that the string owns.
///
/// Positions are 0-based code unit indices; -1 means "not found". Narrow text is multibyte text in the
/// process's locale, which the library never changes. Nothing throws: a failed conversion or allocation
/// leaves the string empty or unchanged.
///
/// The buffer grows to an exact fit and never shrinks. A string that never held text has no buffer: data() is
/// null.
class ZV_EXPORT zvString {
public:
    zvString();
    zvString(const zvString& other);
    /// Takes over the other's buffer, which leaves the other without one.
    zvString(zvString&& other) noexcept;
    /// @name Construction from text
    /// Copies text up to its terminator, at most `n` characters; null gives an empty string.
    /// @{
    zvString(const char* text);
    zvString(const char* text, int n);
    zvString(const wchar16* text);
    zvString(const wchar16* text, int n);
    zvString(const char16_t* text);
    zvString(const char16_t* text, int n);
    /// @}

    /// @name From one character
    /// 0 gives an empty string.
    /// @{
    zvString(char c);
    zvString(wchar16 c);
    zvString(char16_t c);
    /// @}

    /// "True" or "False".
    zvString(bool b);
    zvString(int v);
    zvString(long v);
    /// With six decimals, for example "2.500000"; empty if that takes more than 63 characters.
    zvString(double v);
    /// What is neither text nor a number is refused.
    template <typename Other,
              std::enable_if_t<zvIsOtherPointer<Other> || zvIsOtherCharacter<Other>, bool> = true>
    zvString(Other) = delete;
    virtual ~zvString();

    zvString& operator=(const zvString& other);
    /// Null gives an empty string. A template, so that 0 is no null pointer but a number.
    template <typename Unit, std::enable_if_t<std::is_same_v<Unit, char16_t>, bool> = true>
    zvString& operator=(const Unit* text) {
        assignUnits(text);
        return *this;
    }
    /// Swaps the buffers.
    void swap(zvString& other) noexcept;

    zvString& append(const zvString& other);
    zvString& operator+=(const zvString& other);
    zvString& operator+=(wchar16 c);
    zvString& operator+=(char16_t c);
    zvString& operator+=(char c);
    zvString& operator+=(const char* text);

    /// The null-terminated text, owned by the string and valid until it is modified; null for a string that
    /// never held text.
    const wchar16* data() const { return m_pBuffer; }
    /// The length in code units, terminator excluded.
    int size() const { return m_length; }
    bool empty() const { return m_length == 0; }
    /// The code unit at `i`, without a range check; 0 for a string without a buffer.
    wchar16 operator[](int i) const { return m_pBuffer == nullptr ? wchar16{0} : m_pBuffer[i]; }
    /// The text converted to narrow text, cached, owned by the string and valid until it is modified; null
    /// for an empty string and for text that the locale cannot encode.
    const char* getChars() const;
    /// Byte `i` of getChars(), without a range check; 0 if that is null.
    char getCharAt(int i) const;

    bool equals(const zvString& other) const;
    bool equalsIgnoreCase(const zvString& other) const;
    bool operator==(const zvString& other) const { return equals(other); }
    bool operator!=(const zvString& other) const { return !equals(other); }
    /// Ordinal comparison of the code units; a string without a buffer sorts first.
    bool operator<(const zvString& other) const;
    bool operator>(const zvString& other) const;

    /// The first match of `s` within the range `start` .. `end`, both inclusive; `end` -1 is the last
    /// position.
    int find(const zvString& s, int start = 0, int end = -1) const;
    /// The same, case-insensitively.
    int findNoCase(const zvString& s, int start = 0, int end = -1) const;
    /// The last match of `s` within the range `lowest` .. `from`, both inclusive; `from` -1 is the last
    /// position.
    int reverseFind(const zvString& s, int from = -1, int lowest = 0) const;
    /// The same, case-insensitively.
    int reverseFindNoCase(const zvString& s, int from = -1, int lowest = 0) const;
    /// The number of non-overlapping matches of `s`; the range is that of find().
    int count(const zvString& s, int start = 0, int end = -1) const;
    /// The same, case-insensitively.
    int countNoCase(const zvString& s, int start = 0, int end = -1) const;
    /// Replaces the matches that count() finds; an empty `to` deletes them.
    /// @return the number of replacements; 0 also if `from` equals `to` or one of them is this string itself.
    int replace(const zvString& from, const zvString& to, int start = 0, int end = -1);
    /// The same, case-insensitively.
    int replaceNoCase(const zvString& from, const zvString& to, int start = 0, int end = -1);

    /// Inserts `s` at `pos`; size() appends.
    /// @return false for an empty `s`, for this string itself and for a `pos` out of range. If the buffer
    /// already has room for the result, the tail is moved forward from its lowest position and overwrites
    /// itself: a tail longer than `s` then repeats its beginning.
    bool insert(const zvString& s, int pos);
    /// At most `n` code units from `pos`; empty if `n` is below 1 or `pos` out of range.
    zvString substr(int pos, int n) const;
    /// Removes leading and trailing white space.
    void trim();
    void reverse();
    void toLower();
    void toUpper();
    /// Frees the buffer.
    void clear();
    /// Sets the length to 0 and keeps the buffer.
    void reset();

    /// True for "true", case-insensitively, and for "1".
    bool toBoolean() const;

    /// The integer at the start of the text, after white space; 0 if there is none. Out of range, it is
    /// clamped to 32 bits.
    static int convertUnicodeToInt(const zvString& text);
    static long convertUnicodeToLong(const zvString& text);
    /// The number at the start of the text, after white space; 0.0 if there is none.
    static double convertUnicodeToDouble(const zvString& text);
    /// Whether convertUnicodeToInt() gives a number other than 0: unlike in toBoolean(), "true" is false and
    /// "2" is true.
    static bool convertUnicodeToBool(const zvString& text);

    /// @name Conversions into new buffers
    /// The buffers are null-terminated; the caller owns them and frees them with releaseString() or
    /// releaseUnicode(). Null for null, for empty and for unconvertible text.
    /// @{

    /// Converts at most `n` characters.
    /// @return the number of characters in `out`.
    static int convertStringToUnicode(const char* text, int n, wchar16*& out);
    static wchar16* convertStringToUnicode(const char* text);
    /// Converts at most `n` characters.
    /// @return the number of bytes in `out`.
    static int convertUnicodeToString(const wchar16* text, int n, char*& out);
    static char* convertUnicodeToString(const wchar16* text);
    static char* convertToLowerCase(const char* text);
    static char* convertToUpperCase(const char* text);
    static wchar16* convertToLowerCase(const wchar16* text);
    static wchar16* convertToUpperCase(const wchar16* text);
    /// Frees the buffer, which may be null, and sets the pointer to null.
    static void releaseString(char*& text);
    static void releaseUnicode(wchar16*& text);
    /// @}

protected:
    /// Whether a text of that length needs no other buffer.
    bool hasRoomFor(int length) const { return m_capacity > length; }

private:
    friend class zvCharString;

    void init();
    void set(const char* text);
    void set(const char* text, int n);
    void setW(const wchar16* text);
    void setW(const wchar16* text, int n);
    void addTail(const char* text, int n);
    void addTailW(const wchar16* text, int n);
    void assignUnits(const char16_t* text);
    template <typename Unit>
    void assign(const Unit* text, int length);
    void extend(const wchar16* text, int tail);
    char* narrowCopy() const;
    int replaceW(const zvString& from, const zvString& to, int start, int end, bool ignoreCase);
    bool adopt(wchar16* buffer, int length);
    void _clearCache();

    static int convertUnicodeToString(const wchar16* text, char*& out);

    wchar16* m_pBuffer = nullptr;
    int m_length = 0;
    int m_capacity = 0;  // elements allocated, terminator included
    mutable bool m_bCacheUnchanged = true;
    mutable char* m_pNarrowCache = nullptr;
};

ZV_EXPORT zvString operator+(const zvString& left, const zvString& right);
ZV_EXPORT zvString operator+(const zvString& left, const char* right);
ZV_EXPORT zvString operator+(const zvString& left, char right);
ZV_EXPORT zvString operator+(const char* left, const zvString& right);
ZV_EXPORT bool operator==(const char* left, const zvString& right);
ZV_EXPORT bool operator!=(const char* left, const zvString& right);

/// @name Operands that are a character or a number
/// Each stands for the string that is constructed from it. Without these overloads 0 would be a null pointer
/// and a wide character would be cut down to a narrow one.
/// @{
template <typename Number>
std::enable_if_t<std::is_arithmetic_v<Number>, zvString> operator+(const zvString& left, Number right) {
    return left + zvString(right);
}
template <typename Number>
std::enable_if_t<std::is_arithmetic_v<Number>, zvString> operator+(Number left, const zvString& right) {
    return zvString(left) + right;
}
template <typename Number>
std::enable_if_t<std::is_arithmetic_v<Number>, bool> operator==(Number left, const zvString& right) {
    return right == zvString(left);
}
template <typename Number>
std::enable_if_t<std::is_arithmetic_v<Number>, bool> operator!=(Number left, const zvString& right) {
    return right != zvString(left);
}
/// @}

#endif
