#include "zvString.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include "zvCharString.h"
#include "zvPlatform.h"
#include "zvTextCodec.h"

namespace {

using View = std::basic_string_view<wchar16>;

constexpr std::size_t longestText = INT_MAX - 1;  // its terminator has to be counted in an int as well

View viewOf(const zvString& text) { return {text.data(), static_cast<std::size_t>(text.size())}; }

template <typename Unit>
int lengthOf(const Unit* text) {
    return static_cast<int>(std::min(std::char_traits<Unit>::length(text), longestText));
}

// The length of `text`, `n` at most.
template <typename Unit>
int lengthOf(const Unit* text, int n) {
    const Unit* const end = std::char_traits<Unit>::find(text, static_cast<std::size_t>(n), Unit{0});
    return end == nullptr ? n : static_cast<int>(end - text);
}

template <typename Character>
Character* allocate(std::size_t count) {
    return static_cast<Character*>(::operator new(count * sizeof(Character), std::nothrow));
}

wchar16 toLowerUnit(wchar16 unit) { return static_cast<wchar16>(std::towlower(unit)); }
wchar16 toUpperUnit(wchar16 unit) { return static_cast<wchar16>(std::towupper(unit)); }
char toLowerByte(char byte) { return static_cast<char>(std::tolower(static_cast<unsigned char>(byte))); }
char toUpperByte(char byte) { return static_cast<char>(std::toupper(static_cast<unsigned char>(byte))); }

// Whether the locale maps the letters of ASCII among themselves: Turkish ones do not.
bool foldsAsciiPlainly() { return std::towlower(L'I') == L'i' && std::towupper(L'i') == L'I'; }

bool isAscii(const wchar16* text, int length) {
    return zvTextCodec::isAscii(text, static_cast<std::size_t>(length));
}

template <wchar16 First>
wchar16 otherCaseOf(wchar16 unit) {
    const auto letter = static_cast<wchar16>(unit - First);
    return static_cast<wchar16>(unit ^ (letter < 26 ? 0x20 : 0));
}

void lower(wchar16* text, int length) {
    const bool isPlain = isAscii(text, length) && foldsAsciiPlainly();
    std::transform(text, text + length, text, isPlain ? otherCaseOf<u'A'> : toLowerUnit);
}

zvString lowered(const zvString& text) {
    zvString copy(text);
    copy.toLower();
    return copy;
}

// A new buffer with `convert` applied to every character of `text`.
template <typename Character, typename Convert>
Character* converted(const Character* text, Convert convert) {
    if (text == nullptr) {
        return nullptr;
    }
    const std::size_t length = std::basic_string_view<Character>::traits_type::length(text);
    auto* const copy = allocate<Character>(length + 1);
    if (copy != nullptr) {
        std::transform(text, text + length, copy, convert);
        copy[length] = 0;
    }
    return copy;
}

// The narrow form of `length` units, or null; `bytes` is its length.
char* narrowed(const wchar16* text, int length, int& bytes) {
    bytes = 0;
    const auto units = static_cast<std::size_t>(length);
    // A usual text is converted once, to be measured and copied, which is faster than measuring it by a
    // conversion.
    constexpr std::size_t usualSize = 8192;
    char usual[usualSize];
    const bool isUsual = units * MB_CUR_MAX <= usualSize;
    const std::size_t needed =
        isUsual ? zvTextCodec::narrow(text, units, usual) : zvTextCodec::narrowLength(text, units);
    if (needed == 0 || needed > longestText) {  // as `unconvertible` is
        return nullptr;
    }
    char* const narrow = allocate<char>(needed + 1);
    if (narrow == nullptr) {
        return nullptr;
    }
    if (isUsual) {
        std::copy_n(usual, needed, narrow);
    } else {
        zvTextCodec::narrow(text, units, narrow);
    }
    narrow[needed] = '\0';
    bytes = static_cast<int>(needed);
    return narrow;
}

// No locale has a space among ASCII's visible characters.
bool isSpace(wchar16 unit) { return (unit <= u' ' || unit > u'~') && std::iswspace(unit) != 0; }

// A decimal that needs no rounding but that of one division; false for every other text.
bool readPlainNumber(const wchar16* text, std::size_t length, double& number) {
    constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t mostDigits = 15;
    if (length == 0 || length > mostDigits) {
        return false;
    }
    long long digits = 0;
    std::size_t decimals = 0;
    bool hasPoint = false;
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= u'0' && text[i] <= u'9') {
            digits = digits * 10 + (text[i] - u'0');
            decimals += hasPoint ? 1 : 0;
        } else if (text[i] == u'.' && !hasPoint && i > 0) {
            hasPoint = true;
        } else {
            return false;
        }
    }
    if (hasPoint && std::strcmp(zvPlatform::decimalPoint(), ".") != 0) {
        return false;
    }
    number = static_cast<double>(digits) / powers[decimals];
    return true;
}

// The length of the number's text: up to the white space behind it, which is all that can be told cheaply.
std::size_t numberLength(const wchar16* text) {
    std::size_t length = 0;
    while (text[length] != 0 && !isSpace(text[length])) {
        ++length;
    }
    return length;
}

const wchar16* skipWhiteSpace(const wchar16* text) {
    while (isSpace(*text)) {
        ++text;
    }
    return text;
}

// Formats into the 64 wide characters that a number gets. For one that needs more, the runtimes answer -1 or
// the number of characters that it needs: either way there is no text.
template <typename Number>
zvString formatted(const wchar_t* format, Number value) {
    constexpr std::size_t capacity = 64;
    wchar_t text[capacity];
    const int length = std::swprintf(text, capacity, format, value);
    wchar16 units[capacity];
    if (length < 0 || static_cast<std::size_t>(length) >= capacity) {
        return {};
    }
    for (int i = 0; i < length; ++i) {
        units[i] = static_cast<wchar16>(text[i]);
    }
    return {units, length};
}

// As View's own find for texts that are not empty; whole blocks are looked at in one go for the pattern's
// first and last unit.
std::size_t findFirst(View text, View pattern, std::size_t start) {
    constexpr std::size_t block = 32;
    if (text.size() < pattern.size()) {
        return View::npos;
    }
    const wchar16 first = pattern.front();
    const wchar16 last = pattern.back();
    const std::size_t lastOffset = pattern.size() - 1;
    const std::size_t end = text.size() - lastOffset;  // of the positions at which the pattern may begin
    for (; start + block <= end; start += block) {
        const wchar16* const firsts = text.data() + start;
        const wchar16* const lasts = firsts + lastOffset;
        wchar16 candidates = 0;
        for (std::size_t i = 0; i < block; ++i) {
            candidates |= static_cast<wchar16>((firsts[i] == first) & (lasts[i] == last));
        }
        if (candidates == 0) {
            continue;
        }
        for (std::size_t i = 0; i < block; ++i) {
            if (firsts[i] == first && std::equal(pattern.begin(), pattern.end(), firsts + i)) {
                return start + i;
            }
        }
    }
    return text.find(pattern, start);
}

// Four units as one number, which orders as they do.
constexpr int unitsInOrder = 4;
std::uint64_t inOrder(const wchar16* units) {
    return std::uint64_t{units[0]} << 48U | std::uint64_t{units[1]} << 32U | std::uint64_t{units[2]} << 16U |
           std::uint64_t{units[3]};
}

// First match of `pattern` that lies within start .. end of `text`; -1 as the range end means the last
// position.
int findIn(View text, View pattern, int start, int end) {
    const int length = static_cast<int>(text.size());
    if (text.empty() || pattern.empty() || pattern.size() > text.size() || start < 0 || start >= length) {
        return -1;
    }
    if (end < -1) {
        return -1;
    }
    if (end == -1 || end >= length) {
        end = length - 1;
    }
    const std::size_t position = findFirst(text.substr(0, static_cast<std::size_t>(end) + 1), pattern,
                                           static_cast<std::size_t>(start));
    return position == View::npos ? -1 : static_cast<int>(position);
}

int reverseFindIn(View text, View pattern, int from, int lowest) {
    const int length = static_cast<int>(text.size());
    if (from == -1) {
        from = length - 1;
    }
    lowest = std::max(lowest, 0);
    if (text.empty() || pattern.empty() || pattern.size() > text.size() || from < 0 || from >= length ||
        from - lowest < static_cast<int>(pattern.size()) - 1) {
        return -1;
    }
    const View range =
        text.substr(static_cast<std::size_t>(lowest), static_cast<std::size_t>(from - lowest) + 1);
    const std::size_t position = range.rfind(pattern);
    return position == View::npos ? -1 : static_cast<int>(position) + lowest;
}

// Calls `take` with the position of every match that does not overlap the one before it.
template <typename Take>
int forEachMatch(View text, View pattern, int start, int end, Take take) {
    int matches = 0;
    for (int at = findIn(text, pattern, start, end); at != -1;
         at = findIn(text, pattern, at + static_cast<int>(pattern.size()), end)) {
        take(at);
        ++matches;
    }
    return matches;
}

int countIn(View text, View pattern, int start, int end) {
    return forEachMatch(text, pattern, start, end, [](int) {});
}

}  // namespace

zvString::zvString() = default;

zvString::zvString(const zvString& other) { assign(other.m_pBuffer, other.m_length); }

zvString::zvString(zvString&& other) noexcept
    : m_pBuffer(other.m_pBuffer),
      m_length(other.m_length),
      m_capacity(other.m_capacity),
      m_bCacheUnchanged(other.m_bCacheUnchanged),
      m_pNarrowCache(other.m_pNarrowCache) {
    other.init();
}

zvString::zvString(const char* text) { set(text); }

zvString::zvString(const char* text, int n) { set(text, n); }

zvString::zvString(const wchar16* text) { setW(text); }

zvString::zvString(const wchar16* text, int n) { setW(text, n); }

zvString::zvString(const char16_t* text) {
    if (text != nullptr) {
        assign(text, lengthOf(text));
    }
}

zvString::zvString(const char16_t* text, int n) {
    if (text != nullptr && n > 0) {
        assign(text, lengthOf(text, n));
    }
}

zvString::zvString(char c) { set(&c, 1); }

zvString::zvString(wchar16 c) { setW(&c, 1); }

zvString::zvString(char16_t c) : zvString(static_cast<wchar16>(c)) {}

zvString::zvString(bool b) : zvString(b ? "True" : "False") {}

zvString::zvString(int v) : zvString(formatted(L"%d", v)) {}

zvString::zvString(long v) : zvString(formatted(L"%li", v)) {}

zvString::zvString(double v) : zvString(formatted(L"%lf", v)) {}

// Few strings have a narrow copy and many have no buffer: the test spares most of the calls.
zvString::~zvString() {
    if (m_pBuffer != nullptr) {
        ::operator delete(m_pBuffer);
    }
    if (m_pNarrowCache != nullptr) {
        ::operator delete(m_pNarrowCache);
    }
}

void zvString::init() {
    m_pBuffer = nullptr;
    m_length = 0;
    m_capacity = 0;
    m_bCacheUnchanged = true;
    m_pNarrowCache = nullptr;
}

void zvString::_clearCache() {
    m_bCacheUnchanged = false;
    if (m_pNarrowCache != nullptr) {
        releaseString(m_pNarrowCache);
    }
}

// Takes `buffer`, which holds `length` characters in an exact fit, in the place of the present one.
bool zvString::adopt(wchar16* buffer, int length) {
    if (buffer == nullptr) {
        return false;
    }
    ::operator delete(m_pBuffer);
    m_pBuffer = buffer;
    m_pBuffer[length] = 0;
    m_length = length;
    m_capacity = length + 1;
    return true;
}

void zvString::set(const char* text) {
    wchar16* wide = nullptr;
    const int length = convertStringToUnicode(text, INT_MAX, wide);
    if (wide != nullptr) {
        adopt(wide, length);
    }
}

void zvString::set(const char* text, int n) {
    if (text == nullptr || n < 1) {
        return;
    }
    const char* const end = std::char_traits<char>::find(text, static_cast<std::size_t>(n), '\0');
    const std::size_t bytes =
        end == nullptr ? static_cast<std::size_t>(n) : static_cast<std::size_t>(end - text);
    const std::unique_ptr<char[]> piece(new (std::nothrow) char[bytes + 1]);
    if (piece != nullptr) {
        std::copy_n(text, bytes, piece.get());
        piece[bytes] = '\0';
        set(piece.get());
    }
}

void zvString::setW(const wchar16* text) {
    if (text != nullptr) {
        setW(text, lengthOf(text));
    }
}

void zvString::setW(const wchar16* text, int n) {
    if (text != nullptr && n > 0) {
        assign(text, lengthOf(text, n));
    }
}

template <typename Unit>
void zvString::assign(const Unit* text, int length) {
    if (length == 0) {
        return;
    }
    if (m_capacity <= length && !adopt(allocate<wchar16>(static_cast<std::size_t>(length) + 1), length)) {
        return;
    }
    std::copy_n(text, length, m_pBuffer);
    m_pBuffer[length] = 0;
    m_length = length;
}

void zvString::addTail(const char* text, int n) {
    const zvString wide(text, n);
    extend(wide.m_pBuffer, wide.m_length);
}

void zvString::addTailW(const wchar16* text, int n) {
    if (text != nullptr && n > 0) {
        extend(text, lengthOf(text, n));
    }
}

void zvString::extend(const wchar16* text, int tail) {
    if (tail == 0 || tail > static_cast<int>(longestText) - m_length) {
        return;
    }
    const int length = m_length + tail;
    if (m_capacity > length) {
        std::copy_n(text, tail, m_pBuffer + m_length);
        m_pBuffer[length] = 0;
        m_length = length;
        return;
    }
    auto* const buffer = allocate<wchar16>(static_cast<std::size_t>(length) + 1);
    if (buffer != nullptr) {
        std::copy_n(m_pBuffer, m_length, buffer);
        std::copy_n(text, tail, buffer + m_length);
        adopt(buffer, length);
    }
}

zvString& zvString::operator=(const zvString& other) {
    if (this != &other) {
        reset();
        assign(other.m_pBuffer, other.m_length);
    }
    return *this;
}

zvString& zvString::operator=(const char16_t* text) {
    reset();
    if (text != nullptr) {
        assign(text, lengthOf(text));
    }
    return *this;
}

void zvString::swap(zvString& other) noexcept {
    std::swap(m_pBuffer, other.m_pBuffer);
    std::swap(m_length, other.m_length);
    std::swap(m_capacity, other.m_capacity);
    std::swap(m_bCacheUnchanged, other.m_bCacheUnchanged);
    std::swap(m_pNarrowCache, other.m_pNarrowCache);
}

zvString& zvString::append(const zvString& other) {
    _clearCache();
    extend(other.m_pBuffer, other.m_length);
    return *this;
}

zvString& zvString::operator+=(const zvString& other) { return append(other); }

zvString& zvString::operator+=(wchar16 c) {
    _clearCache();
    addTailW(&c, 1);
    return *this;
}

zvString& zvString::operator+=(char16_t c) { return *this += static_cast<wchar16>(c); }

zvString& zvString::operator+=(char c) {
    _clearCache();
    addTail(&c, 1);
    return *this;
}

zvString& zvString::operator+=(const char* text) { return append(zvString(text)); }

const char* zvString::getChars() const {
    if (m_pNarrowCache == nullptr) {
        m_pNarrowCache = narrowCopy();
        m_bCacheUnchanged = true;
    }
    return m_pNarrowCache;
}

char* zvString::narrowCopy() const {
    int bytes = 0;
    return m_pBuffer == nullptr ? nullptr : narrowed(m_pBuffer, m_length, bytes);
}

char zvString::getCharAt(int i) const {
    const char* const narrow = getChars();
    return narrow == nullptr ? '\0' : narrow[i];
}

bool zvString::equals(const zvString& other) const {
    return m_length == other.m_length && std::equal(m_pBuffer, m_pBuffer + m_length, other.m_pBuffer);
}

bool zvString::equalsIgnoreCase(const zvString& other) const {
    if (m_length != other.m_length) {
        return false;
    }
    if (isAscii(m_pBuffer, m_length) && isAscii(other.m_pBuffer, m_length) && foldsAsciiPlainly()) {
        unsigned difference = 0;
        for (int i = 0; i < m_length; ++i) {
            difference |= static_cast<unsigned>(otherCaseOf<u'A'>(m_pBuffer[i]) ^
                                                otherCaseOf<u'A'>(other.m_pBuffer[i]));
        }
        return difference == 0;
    }
    return std::equal(m_pBuffer, m_pBuffer + m_length, other.m_pBuffer, [](wchar16 left, wchar16 right) {
        return left == right || toLowerUnit(left) == toLowerUnit(right);
    });
}

bool zvString::operator<(const zvString& other) const {
    // Maps spend their time here, and a view's own comparison looks at every unit twice.
    const int common = std::min(m_length, other.m_length);
    if (common < unitsInOrder) {
        return viewOf(*this) < viewOf(other);
    }
    int i = 0;
    while (i + unitsInOrder < common &&
           std::memcmp(m_pBuffer + i, other.m_pBuffer + i, sizeof(std::uint64_t)) == 0) {
        i += unitsInOrder;
    }
    // What stands before is equal, so that the last units may be looked at again to make them four.
    i = std::min(i, common - unitsInOrder);
    const std::uint64_t left = inOrder(m_pBuffer + i);
    const std::uint64_t right = inOrder(other.m_pBuffer + i);
    return left != right ? left < right : m_length < other.m_length;
}

bool zvString::operator>(const zvString& other) const { return other < *this; }

int zvString::find(const zvString& s, int start, int end) const {
    return findIn(viewOf(*this), viewOf(s), start, end);
}

int zvString::findNoCase(const zvString& s, int start, int end) const {
    return lowered(*this).find(lowered(s), start, end);
}

int zvString::reverseFind(const zvString& s, int from, int lowest) const {
    return reverseFindIn(viewOf(*this), viewOf(s), from, lowest);
}

int zvString::reverseFindNoCase(const zvString& s, int from, int lowest) const {
    return lowered(*this).reverseFind(lowered(s), from, lowest);
}

int zvString::count(const zvString& s, int start, int end) const {
    return countIn(viewOf(*this), viewOf(s), start, end);
}

int zvString::countNoCase(const zvString& s, int start, int end) const {
    return lowered(*this).count(lowered(s), start, end);
}

int zvString::replace(const zvString& from, const zvString& to, int start, int end) {
    return replaceW(from, to, start, end, false);
}

int zvString::replaceNoCase(const zvString& from, const zvString& to, int start, int end) {
    return replaceW(from, to, start, end, true);
}

int zvString::replaceW(const zvString& from, const zvString& to, int start, int end, bool ignoreCase) {
    _clearCache();
    if (&from == this || &to == this || from.equals(to) || empty() || from.empty() ||
        from.m_length > m_length) {
        return 0;
    }
    const std::unique_ptr<int[]> positions(
        new (std::nothrow) int[static_cast<std::size_t>(m_length / from.m_length)]);
    if (positions == nullptr) {
        return 0;
    }
    int* next = positions.get();
    const auto remember = [&next](int position) { *next++ = position; };
    const int matches =
        ignoreCase ? forEachMatch(viewOf(lowered(*this)), viewOf(lowered(from)), start, end, remember)
                   : forEachMatch(viewOf(*this), viewOf(from), start, end, remember);
    const long long length = m_length + static_cast<long long>(matches) * (to.m_length - from.m_length);
    if (matches == 0 || length > static_cast<long long>(longestText)) {
        return 0;
    }
    auto* const buffer = allocate<wchar16>(static_cast<std::size_t>(length) + 1);
    if (buffer == nullptr) {
        return 0;
    }
    wchar16* out = buffer;
    int copied = 0;
    for (int i = 0; i < matches; ++i) {
        out = std::copy(m_pBuffer + copied, m_pBuffer + positions[static_cast<std::size_t>(i)], out);
        out = std::copy_n(to.m_pBuffer, to.m_length, out);
        copied = positions[static_cast<std::size_t>(i)] + from.m_length;
    }
    std::copy(m_pBuffer + copied, m_pBuffer + m_length, out);
    adopt(buffer, static_cast<int>(length));
    return matches;
}

bool zvString::insert(const zvString& s, int pos) {
    _clearCache();
    if (&s == this || s.empty() || pos < 0 || pos > m_length) {
        return false;
    }
    if (empty()) {
        *this = s;
        return !empty();
    }
    if (pos == m_length) {
        append(s);
        return m_length > pos;
    }
    if (s.m_length > static_cast<int>(longestText) - m_length) {
        return false;
    }
    const int length = m_length + s.m_length;
    wchar16* buffer = m_pBuffer;
    if (m_capacity <= length) {
        buffer = allocate<wchar16>(static_cast<std::size_t>(length) + 1);
        if (buffer == nullptr) {
            return false;
        }
        std::copy_n(m_pBuffer, pos, buffer);
    }
    // Lowest position first on purpose: in place, a long tail reads what it has just written.
    for (int i = pos; i < m_length; ++i) {
        buffer[i + s.m_length] = m_pBuffer[i];
    }
    std::copy_n(s.m_pBuffer, s.m_length, buffer + pos);
    if (buffer != m_pBuffer) {
        return adopt(buffer, length);
    }
    m_pBuffer[length] = 0;
    m_length = length;
    return true;
}

zvString zvString::substr(int pos, int n) const {
    zvString piece;
    if (pos >= 0 && pos < m_length && n > 0) {
        piece.assign(m_pBuffer + pos, std::min(n, m_length - pos));
    }
    return piece;
}

void zvString::trim() {
    _clearCache();
    if (empty()) {
        return;
    }
    const auto isText = [](wchar16 unit) { return std::iswspace(unit) == 0; };
    const wchar16* const first = std::find_if(m_pBuffer, m_pBuffer + m_length, isText);
    const wchar16* last = m_pBuffer + m_length;
    while (last != first && !isText(last[-1])) {
        --last;
    }
    m_length = static_cast<int>(last - first);
    std::copy(first, last, m_pBuffer);
    m_pBuffer[m_length] = 0;
}

void zvString::reverse() {
    _clearCache();
    std::reverse(m_pBuffer, m_pBuffer + m_length);
}

void zvString::toLower() {
    _clearCache();
    lower(m_pBuffer, m_length);
}

void zvString::toUpper() {
    _clearCache();
    std::transform(m_pBuffer, m_pBuffer + m_length, m_pBuffer, toUpperUnit);
}

void zvString::clear() {
    _clearCache();
    releaseUnicode(m_pBuffer);
    m_length = 0;
    m_capacity = 0;
}

void zvString::reset() {
    _clearCache();
    if (m_pBuffer != nullptr) {
        *m_pBuffer = 0;
    }
    m_length = 0;
}

bool zvString::toBoolean() const { return equalsIgnoreCase("true") || equalsIgnoreCase("1"); }

int zvString::convertUnicodeToInt(const zvString& text) {
    if (text.empty()) {
        return 0;
    }
    const wchar16* digit = skipWhiteSpace(text.m_pBuffer);
    const bool negative = *digit == u'-';
    if (negative || *digit == u'+') {
        ++digit;
    }
    // The home platform's numbers have 32 bits; a wider runtime must not tell other results.
    const long long limit = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    long long value = 0;
    for (; *digit >= u'0' && *digit <= u'9'; ++digit) {
        value = std::min(limit, value * 10 + (*digit - u'0'));
    }
    return static_cast<int>(negative ? -value : value);
}

long zvString::convertUnicodeToLong(const zvString& text) { return convertUnicodeToInt(text); }

double zvString::convertUnicodeToDouble(const zvString& text) {
    if (text.empty()) {
        return 0.0;
    }
    const wchar16* const number = skipWhiteSpace(text.m_pBuffer);
    const std::size_t length = numberLength(number);
    double plain = 0.0;
    if (readPlainNumber(number, length, plain)) {
        return plain;
    }
    constexpr std::size_t usualLength = 64;
    wchar_t usual[usualLength];
    std::unique_ptr<wchar_t[]> unusual;
    wchar_t* wide = usual;
    if (length >= usualLength) {
        unusual.reset(new (std::nothrow) wchar_t[length + 1]);
        wide = unusual.get();
    }
    if (wide == nullptr) {
        return 0.0;
    }
    std::copy_n(number, length, wide);
    wide[length] = L'\0';
    return std::wcstod(wide, nullptr);
}

bool zvString::convertUnicodeToBool(const zvString& text) { return convertUnicodeToInt(text) != 0; }

int zvString::convertStringToUnicode(const char* text, int n, wchar16*& out) {
    out = nullptr;
    if (text == nullptr || n < 1) {
        return 0;
    }
    constexpr std::size_t usualLength = 2048;
    const std::size_t bytes = std::char_traits<char>::length(text);
    if (bytes <= usualLength && bytes <= static_cast<std::size_t>(n)) {
        // Converted once, to be measured and copied, which is faster than measuring it by a conversion.
        wchar16 usual[usualLength];
        const std::size_t units = zvTextCodec::widen(text, usual, usualLength);
        out = units == 0 ? nullptr : allocate<wchar16>(units + 1);
        if (out == nullptr) {
            return 0;
        }
        *std::copy_n(usual, units, out) = 0;
        return static_cast<int>(units);
    }
    const std::size_t needed = zvTextCodec::wideLength(text);
    if (needed == 0 || needed == zvTextCodec::unconvertible || needed > longestText) {
        return 0;
    }
    out = allocate<wchar16>(needed + 1);
    if (out == nullptr) {
        return 0;
    }
    const std::size_t written = zvTextCodec::widen(text, out, std::min(needed, static_cast<std::size_t>(n)));
    out[written] = 0;
    return static_cast<int>(written);
}

wchar16* zvString::convertStringToUnicode(const char* text) {
    wchar16* wide = nullptr;
    convertStringToUnicode(text, INT_MAX, wide);
    return wide;
}

int zvString::convertUnicodeToString(const wchar16* text, int n, char*& out) {
    out = nullptr;
    int bytes = 0;
    if (text != nullptr && n > 0) {
        out = narrowed(text, lengthOf(text, n), bytes);
    }
    return bytes;
}

int zvString::convertUnicodeToString(const wchar16* text, char*& out) {
    return convertUnicodeToString(text, INT_MAX, out);
}

char* zvString::convertUnicodeToString(const wchar16* text) {
    char* narrow = nullptr;
    convertUnicodeToString(text, narrow);
    return narrow;
}

char* zvString::convertToLowerCase(const char* text) { return converted(text, toLowerByte); }
char* zvString::convertToUpperCase(const char* text) { return converted(text, toUpperByte); }
wchar16* zvString::convertToLowerCase(const wchar16* text) { return converted(text, toLowerUnit); }
wchar16* zvString::convertToUpperCase(const wchar16* text) { return converted(text, toUpperUnit); }

void zvString::releaseString(char*& text) {
    ::operator delete(text);
    text = nullptr;
}

void zvString::releaseUnicode(wchar16*& text) {
    ::operator delete(text);
    text = nullptr;
}

zvString operator+(const zvString& left, const zvString& right) {
    zvString sum(left);
    sum += right;
    return sum;
}

zvString operator+(const zvString& left, const char* right) { return left + zvString(right); }
zvString operator+(const zvString& left, char right) { return left + zvString(right); }
zvString operator+(const char* left, const zvString& right) { return zvString(left) + right; }
bool operator==(const char* left, const zvString& right) { return zvString(left).equals(right); }
bool operator!=(const char* left, const zvString& right) { return !(left == right); }
