#ifndef ZV_STRING_H
#define ZV_STRING_H

#include "zvExport.h"
#include "zvTypes.h"

/// The library's one text type: UTF-16 code units in a 0-terminated buffer that the string owns.
///
/// Positions are 0-based code unit indices and -1 means "not found". Narrow text is multibyte text in the
/// process's locale, which the library never changes. Nothing in here throws: a failed conversion or
/// allocation leaves the string empty or unchanged.
///
/// A buffer grows to exactly what is needed and is kept when the text becomes shorter. A string that never
/// held text has no buffer at all: data() is then null.
class ZV_EXPORT zvString {
public:
    zvString();
    zvString(const zvString& other);
    /// Takes the other's buffer and leaves it as a string that never held text.
    zvString(zvString&& other) noexcept;
    /// @name From a text
    /// Null gives an empty string in each of these; text is read up to its terminator, and to `n` at most.
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
    explicit zvString(char c);
    explicit zvString(wchar16 c);
    explicit zvString(char16_t c);
    /// @}

    /// "True" or "False".
    explicit zvString(bool b);
    explicit zvString(int v);
    explicit zvString(long v);
    /// Six decimals, as in "2.500000"; empty when that takes more than 63 characters.
    explicit zvString(double v);
    virtual ~zvString();

    zvString& operator=(const zvString& other);
    /// Null gives an empty text.
    zvString& operator=(const char16_t* text);
    /// Exchanges the two texts with their buffers.
    void swap(zvString& other) noexcept;

    zvString& append(const zvString& other);
    zvString& operator+=(const zvString& other);
    zvString& operator+=(wchar16 c);
    zvString& operator+=(char16_t c);
    zvString& operator+=(char c);
    zvString& operator+=(const char* text);

    /// The text, owned by the string and valid until it changes; null for a string that never held text.
    const wchar16* data() const { return m_pBuffer; }
    /// Code units before the terminator.
    int size() const { return m_length; }
    bool empty() const { return m_length == 0; }
    /// The code unit at `i`, which is not checked; 0 without a buffer.
    wchar16 operator[](int i) const { return m_pBuffer == nullptr ? wchar16{0} : m_pBuffer[i]; }
    /// The text as narrow text, owned by the string and valid until it changes; null for an empty string and
    /// for a text without a narrow form.
    const char* getChars() const;
    /// Byte `i`, which is not checked, of getChars(); 0 when that is null.
    char getCharAt(int i) const;

    bool equals(const zvString& other) const;
    bool equalsIgnoreCase(const zvString& other) const;
    bool operator==(const zvString& other) const { return equals(other); }
    bool operator!=(const zvString& other) const { return !equals(other); }
    /// Ordinal order of the code units; a string without a buffer comes before every other text.
    bool operator<(const zvString& other) const;
    bool operator>(const zvString& other) const;

    /// First position of `s` in the range `start` .. `end`, both inclusive; `end` -1 means the last position.
    int find(const zvString& s, int start = 0, int end = -1) const;
    int findNoCase(const zvString& s, int start = 0, int end = -1) const;
    /// Last position of `s` in the range `lowest` .. `from`, both inclusive; `from` -1 means the last
    /// position.
    int reverseFind(const zvString& s, int from = -1, int lowest = 0) const;
    int reverseFindNoCase(const zvString& s, int from = -1, int lowest = 0) const;
    /// Occurrences of `s`, which do not overlap, in the range of find().
    int count(const zvString& s, int start = 0, int end = -1) const;
    int countNoCase(const zvString& s, int start = 0, int end = -1) const;
    /// Replaces what count() counts; an empty `to` deletes it. @return the number of replacements; 0 as well
    /// when `from` equals `to` or one of them is this very string.
    int replace(const zvString& from, const zvString& to, int start = 0, int end = -1);
    int replaceNoCase(const zvString& from, const zvString& to, int start = 0, int end = -1);

    /// Inserts `s` before position `pos`; at size() it appends. @return false for an empty `s`, this very
    /// string and a position outside the text. When the buffer has room for the result, the text behind `pos`
    /// is moved up lowest position first, over itself: a tail longer than `s` then repeats its beginning.
    bool insert(const zvString& s, int pos);
    /// At most `n` characters from `pos`; empty when `n` is below 1 or `pos` outside the text.
    zvString substr(int pos, int n) const;
    /// Removes white space from both ends.
    void trim();
    void reverse();
    void toLower();
    void toUpper();
    /// Frees the buffer.
    void clear();
    /// Empties the text and keeps the buffer.
    void reset();

    /// True for "true" and "1", ignoring case.
    bool toBoolean() const;

    /// The integer at the start of the text, after white space; 0 without one, and the nearest 32-bit number
    /// for one that is out of range.
    static int convertUnicodeToInt(const zvString& text);
    static long convertUnicodeToLong(const zvString& text);
    /// The number at the start of the text, after white space; 0.0 without one.
    static double convertUnicodeToDouble(const zvString& text);
    /// Whether convertUnicodeToInt is not 0: unlike toBoolean(), "true" is false and "2" is true.
    static bool convertUnicodeToBool(const zvString& text);

    /// @name Conversions into new buffers
    /// The caller owns the buffers and gives them back to releaseString or releaseUnicode. Where there is
    /// nothing to return, they are null.
    /// @{

    /// At most `n` characters are converted. @return the number of characters in `out`.
    static int convertStringToUnicode(const char* text, int n, wchar16*& out);
    static wchar16* convertStringToUnicode(const char* text);
    /// At most `n` characters are converted. @return the number of bytes in `out`.
    static int convertUnicodeToString(const wchar16* text, int n, char*& out);
    static char* convertUnicodeToString(const wchar16* text);
    static char* convertToLowerCase(const char* text);
    static char* convertToUpperCase(const char* text);
    static wchar16* convertToLowerCase(const wchar16* text);
    static wchar16* convertToUpperCase(const wchar16* text);
    /// Deletes the buffer, which may be null, and sets the pointer to null.
    static void releaseString(char*& text);
    static void releaseUnicode(wchar16*& text);
    /// @}

private:
    friend class zvCharString;

    void init();
    void set(const char* text);
    void set(const char* text, int n);
    void setW(const wchar16* text);
    void setW(const wchar16* text, int n);
    void addTail(const char* text, int n);
    void addTailW(const wchar16* text, int n);
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

#endif
