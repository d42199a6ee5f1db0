#ifndef ZV_STRING_TOKENISER_H
#define ZV_STRING_TOKENISER_H

#include "zvStringList.h"

/// Splits a text once, when tokenise() is called.
///
/// By a character: leading delimiters give no token, a run of k delimiters behind a token gives k - 1 empty
/// ones. By any character of a delimiter text, or by a delimiter text as a whole: no token is ever empty.
/// Without a delimiter the whole text is one token.
class ZV_EXPORT zvStringTokeniser {
public:
    /// The character matches in ASCII only.
    zvStringTokeniser(zvString source, char delimiter);
    /// `wholeString`: `delimiters` is one separator, otherwise each of its characters is one.
    zvStringTokeniser(zvString source, const char* delimiters, bool wholeString);
    zvStringTokeniser(const zvStringTokeniser&) = delete;
    zvStringTokeniser& operator=(const zvStringTokeniser&) = delete;
    virtual ~zvStringTokeniser();

    /// Appends the tokens to the list; a second call appends them once more.
    void tokenise();
    int getNumTokens() const;
    /// Token `i`; an empty string for any other index.
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
