#ifndef ZV_STRING_TOKENISER_H
#define ZV_STRING_TOKENISER_H

#include "zvStringList.h"

/// Splits a string into tokens when tokenise() is called.
///
/// With a single delimiter character, leading delimiters give no token, and a run of k delimiters after a
/// token gives k - 1 empty tokens. With a delimiter string, as a set of characters or as a whole, no token is
/// empty. Without a delimiter the whole string is one token.
class ZV_EXPORT zvStringTokeniser {
public:
    /// Only ASCII delimiters match.
    zvStringTokeniser(zvString source, char delimiter);
    /// With `wholeString`, `delimiters` is one delimiter; otherwise each of its characters is one.
    zvStringTokeniser(zvString source, const char* delimiters, bool wholeString);
    zvStringTokeniser(const zvStringTokeniser&) = delete;
    zvStringTokeniser& operator=(const zvStringTokeniser&) = delete;
    virtual ~zvStringTokeniser();

    /// Appends the tokens to the token list: not idempotent, a second call appends them again.
    void tokenise();
    int getNumTokens() const;
    /// Token `i`; an empty string if `i` is out of range.
    zvString getToken(int i) const;

private:
    zvStringTokeniser() = default;

    void tokeniseWithCharDelimiter();
    void tokeniseWithStringDelimiter();
    void tokeniseWithStringAsWholeDelimiter();

    char m_delimiter = '\0';
    zvString m_strDelimiters;
    zvString m_strSource;
    zvStringList m_tokens;
    bool m_bCharDelimiter = false;
    bool m_bWholeString = false;
};

#endif
