#include "zvString.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "zvStringBuffer.h"
#include "zvStringUnits.h"
#include "zvStringView.h"

namespace {

using View = zvStringView;
using zvStringBuffer::allocate;
using zvStringBuffer::longestText;

// Four units as one number, which orders as they do.
constexpr int unitsInOrder = 4;
std::uint64_t inOrder(const wchar16* units) {
    return std::uint64_t{units[0]} << 48U | std::uint64_t{units[1]} << 32U | std::uint64_t{units[2]} << 16U |
           std::uint64_t{units[3]};
}

zvString lowered(const zvString& text) {
    zvString copy(text);
    copy.toLower();
    return copy;
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

bool zvString::equals(const zvString& other) const { return zvStringUnits::areEqual(*this, other); }

bool zvString::operator<(const zvString& other) const {
    // Maps spend their time here, and a view's own comparison looks at every unit twice.
    const int common = std::min(m_length, other.m_length);
    int i = 0;
    if (common < unitsInOrder) {
        while (i < common && m_pBuffer[i] == other.m_pBuffer[i]) {
            ++i;
        }
        return i < common ? m_pBuffer[i] < other.m_pBuffer[i] : m_length < other.m_length;
    }
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

bool operator==(const char* left, const zvString& right) { return zvString(left).equals(right); }
bool operator!=(const char* left, const zvString& right) { return !(left == right); }

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
