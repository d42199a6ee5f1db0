#include "zvStringTokeniser.h"

#include "zvTestSupport.h"

namespace {

std::string tokens(zvStringTokeniser& tokeniser) {
    std::string joined;
    for (int i = 0; i < tokeniser.getNumTokens(); ++i) {
        joined += "<" + narrow(tokeniser.getToken(i)) + ">";
    }
    return joined;
}

TEST(zvStringTokeniserTest, SplitsByACharacter) {
    struct Case {
        const char *text, *expected;
    };
    const Case cases[] = {
        {"a,b,c", "<a><b><c>"}, {"abc", "<abc>"},        {"", ""},        {"a,,b", "<a><><b>"},
        {",a,b,", "<a><b>"},    {"a,,,b", "<a><><><b>"}, {",", ""},       {",,", ""},
        {",a", "<a>"},          {",a,b", "<a><b>"},      {"a,,", "<a><>"}};
    for (const Case& c : cases) {
        zvStringTokeniser tokeniser(c.text, ',');
        EXPECT_EQ(tokeniser.getNumTokens(), 0) << "not before tokenise()";
        tokeniser.tokenise();
        EXPECT_EQ(tokens(tokeniser), c.expected) << c.text;
    }
    zvStringTokeniser beyondAscii(u"a\u00E4b", static_cast<char>(0xE4));
    beyondAscii.tokenise();
    EXPECT_EQ(beyondAscii.getNumTokens(), 1);
}

TEST(zvStringTokeniserTest, SplitsByAnyCharacterOrByAWholeText) {
    struct Case {
        const char *text, *delimiters;
        bool whole;
        const char* expected;
    };
    const Case cases[] = {{"a;b,,c", ";,", false, "<a><b><c>"},
                          {";,a;,", ";,", false, "<a>"},
                          {";;", ";", false, ""},
                          {"a b", "", false, "<a b>"},
                          {"", ";", false, ""},
                          {"a--b----c--", "--", true, "<a><b><c>"},
                          {"::a", "::", true, "<a>"},
                          {"a", "::", true, "<a>"},
                          {"a:b:::c", "::", true, "<a:b><:c>"},
                          {"::", "::", true, ""},
                          {"a b", "", true, "<a b>"},
                          {"", "::", true, ""}};
    for (const Case& c : cases) {
        zvStringTokeniser tokeniser(c.text, c.delimiters, c.whole);
        tokeniser.tokenise();
        EXPECT_EQ(tokens(tokeniser), c.expected) << c.text;
    }
    zvStringTokeniser noDelimiter("a", nullptr, true);
    noDelimiter.tokenise();
    EXPECT_EQ(tokens(noDelimiter), "<a>");
}

TEST(zvStringTokeniserTest, ASecondRunAppends) {
    zvStringTokeniser tokeniser("a,b", ',');
    tokeniser.tokenise();
    tokeniser.tokenise();
    EXPECT_EQ(tokens(tokeniser), "<a><b><a><b>");
    EXPECT_TRUE(tokeniser.getToken(4).empty() && tokeniser.getToken(-1).empty());
}

}  // namespace
