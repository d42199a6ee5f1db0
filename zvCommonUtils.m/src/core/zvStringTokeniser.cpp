#include "zvStringTokeniser.h"

#include <algorithm>

#include "zvStringView.h"

namespace {

using View = zvStringView;

constexpr std::size_t npos = View::npos;

void addToken(zvStringList& tokens, const zvString& source, std::size_t begin, std::size_t end) {
    const std::size_t last = std::min(end, static_cast<std::size_t>(source.size()));
    tokens.addString(source.substr(static_cast<int>(begin), static_cast<int>(last - begin)));
}

}  // namespace

zvStringTokeniser::zvStringTokeniser(zvString source, char delimiter)
    : m_delimiter(delimiter), m_strSource(std::move(source)), m_bCharDelimiter(true) {}

zvStringTokeniser::zvStringTokeniser(zvString source, const char* delimiters, bool wholeString)
    : m_strDelimiters(delimiters), m_strSource(std::move(source)), m_bWholeString(wholeString) {}

zvStringTokeniser::~zvStringTokeniser() = default;

void zvStringTokeniser::tokenise() {
    if (m_strSource.empty()) {
        return;
    }
    if (m_bCharDelimiter) {
        tokeniseWithCharDelimiter();
    } else if (m_bWholeString) {
        tokeniseWithStringAsWholeDelimiter();
    } else {
        tokeniseWithStringDelimiter();
    }
}

int zvStringTokeniser::getNumTokens() const { return m_tokens.numStrings(); }

zvString zvStringTokeniser::getToken(int i) const { return m_tokens.getString(i); }

void zvStringTokeniser::tokeniseWithCharDelimiter() {
    const View text = viewOf(m_strSource);
    // A delimiter beyond ASCII is sign-extended, and so matches no code unit of ordinary text.
    const auto delimiter = static_cast<wchar16>(static_cast<signed char>(m_delimiter));
    std::size_t start = text.find_first_not_of(delimiter);
    while (start != npos) {
        std::size_t end = text.find(delimiter, start);
        addToken(m_tokens, m_strSource, start, end);
        if (end == npos) {
            return;
        }
        for (; end + 1 < text.size() && text[end + 1] == delimiter; ++end) {
            m_tokens.addString(zvString());
        }
        start = text.find_first_not_of(delimiter, end);
    }
}

void zvStringTokeniser::tokeniseWithStringDelimiter() {
    const View text = viewOf(m_strSource);
    const View delimiters = viewOf(m_strDelimiters);
    std::size_t end = 0;
    for (std::size_t start = text.find_first_not_of(delimiters); start != npos;
         start = end == npos ? npos : text.find_first_not_of(delimiters, end)) {
        end = text.find_first_of(delimiters, start);
        addToken(m_tokens, m_strSource, start, end);
    }
}

void zvStringTokeniser::tokeniseWithStringAsWholeDelimiter() {
    const View text = viewOf(m_strSource);
    const View delimiter = viewOf(m_strDelimiters);
    std::size_t start = 0;
    while (start != npos && start < text.size()) {
        const std::size_t end = delimiter.empty() ? npos : text.find(delimiter, start);
        if (end != start) {
            addToken(m_tokens, m_strSource, start, end);
        }
        start = end == npos ? npos : end + delimiter.size();
    }
}
