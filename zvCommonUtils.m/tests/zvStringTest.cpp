#include "zvString.h"

#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>
#include <string>

#include "zvCharString.h"
#include "zvTestSupport.h"

namespace {

// A string with spare capacity.
zvString withRoom(const char* text, int room) {
    zvString wide(std::string(static_cast<std::size_t>(room), 'x').c_str());
    wide = zvString(text);
    return wide;
}

TEST(zvStringTest, EmptyStringsHaveNoBuffer) {
    const zvString none[] = {zvString(),
                             zvString(""),
                             zvString("abc", 0),
                             zvString(static_cast<const char*>(nullptr)),
                             zvString(static_cast<const wchar16*>(nullptr)),
                             zvString(u"abc", 0),
                             zvString('\0'),
                             zvString(wchar16{0}),
                             zvString(1e60)};
    for (const zvString& text : none) {
        EXPECT_EQ(text.data(), nullptr);
        EXPECT_EQ(text.size(), 0);
        EXPECT_EQ(text.getChars(), nullptr);
        EXPECT_EQ(text.getCharAt(3), '\0');
        EXPECT_STREQ(zvCharString(text).data(), "");
        zvString assigned;
        assigned = text;
        EXPECT_EQ(assigned.data(), nullptr);
    }
}

TEST(zvStringTest, IsConstructedFromTextsAndNumbers) {
    const wchar16 units[] = {'a', 'b', 0, 'c', 0};
    EXPECT_EQ(zvString("abcdef", 3), "abc");
    EXPECT_EQ(zvString("ab", 100), "ab");
    EXPECT_EQ(zvString(units, 4), "ab");
    EXPECT_EQ(zvString(u"ab\0c", 4), "ab");
    EXPECT_EQ(zvString(true), "True");
    EXPECT_EQ(zvString(-7), "-7");
    EXPECT_EQ(zvString(2147483647L), "2147483647");
    EXPECT_EQ(zvString(3.0), "3.000000");
    EXPECT_EQ(zvString(1e55).size(), 63);
    EXPECT_EQ(zvString('x') + 'y' + "z", "xyz");
    EXPECT_TRUE("ab" == zvString("ab"));
    EXPECT_TRUE("ab" != zvString("aB"));
}

// Neither is 0 a null pointer anywhere, nor is a wide character cut down to a narrow one.
TEST(zvStringTest, NumbersAndCharactersStandForTheirText) {
    const zvString euro = u"\u20AC", zero = 0, empty;
    zvString text("abc");
    text = 0;
    EXPECT_EQ(text.size(), 1);
    EXPECT_TRUE(text == 0 && 0 == text && text == 0L && !(text != 0) && text == zero);
    EXPECT_TRUE(empty != 0 && 0 != empty && !(empty == 0) && !(0L == empty));
    EXPECT_EQ(text + euro[0], u"0\u20AC");
    EXPECT_EQ(text + u'\u20AC', u"0\u20AC");
    EXPECT_EQ(u'\u20AC' + text, u"\u20AC0");
    EXPECT_EQ(text + 65, "065");
    EXPECT_EQ(0 + text, "00");
    EXPECT_EQ(text + false + 'x' + 2.5, "0Falsex2.500000");
}

TEST(zvStringTest, AssigningItsOwnBufferKeepsTheText) {
    using Assign = void (*)(zvString&);
    const Assign assignments[] = {
        [](zvString& s) { s = s.getChars(); },
        [](zvString& s) { s = s.data(); },
        [](zvString& s) { s = reinterpret_cast<const char16_t*>(s.data()); },
    };
    for (const Assign assign : assignments) {
        zvString text(u"a longer text");
        assign(text);
        EXPECT_EQ(text, "a longer text");
        EXPECT_STREQ(text.getChars(), "a longer text");
    }
    zvString text(u"a longer text");
    text = reinterpret_cast<const char16_t*>(text.data()) + 2;
    EXPECT_EQ(text, "longer text");
    text = static_cast<const char16_t*>(nullptr);
    EXPECT_TRUE(text.empty() && text.getChars() == nullptr);
}

TEST(zvStringTest, GrowsToAnExactFitAndKeepsALargerBuffer) {
    zvString text("abcdef");
    const wchar16* const buffer = text.data();
    text = "xyz";
    EXPECT_EQ(text.data(), buffer);
    text += "123";
    EXPECT_EQ(text.data(), buffer);
    EXPECT_EQ(text, "xyz123");
    text += '4';
    EXPECT_NE(text.data(), buffer);
    text.reset();
    EXPECT_NE(text.data(), nullptr);
    EXPECT_EQ(text.getChars(), nullptr);
    text.clear();
    EXPECT_EQ(text.data(), nullptr);
    zvString doubled("ab");
    doubled += doubled;
    EXPECT_EQ(doubled, "abab");
}

TEST(zvStringTest, EveryChangeDiscardsTheNarrowCopy) {
    using Change = void (*)(zvString&);
    const Change changes[] = {
        [](zvString& s) { s += "!"; },         [](zvString& s) { s = "new"; },
        [](zvString& s) { s.toUpper(); },      [](zvString& s) { s.reverse(); },
        [](zvString& s) { s.trim(); },         [](zvString& s) { s.replace("b", "c"); },
        [](zvString& s) { s.insert("i", 1); }, [](zvString& s) { s += u'\u00e4'; },
        [](zvString& s) { s.toLower(); },
    };
    for (const Change change : changes) {
        zvString text(" aBb ");
        ASSERT_STREQ(text.getChars(), " aBb ");
        change(text);
        EXPECT_STREQ(text.getChars(), zvCharString(text).data());
        EXPECT_STRNE(text.getChars(), " aBb ");
    }
}

TEST(zvStringTest, Searches) {
    struct Case {
        const char* text;
        const char* pattern;
        int start, end, expected;
    };
    const Case forward[] = {
        {"abcdef", "cd", 0, -1, 2},  {"abcdef", "cd", 0, 2, -1}, {"abcdef", "cd", 0, 3, 2},
        {"abcdef", "ab", 1, -1, -1}, {"abc", "c", 3, -1, -1},    {"abc", "c", 2, 99, 2},
        {"abc", "a", -1, -1, -1},    {"abc", "", 0, -1, -1},     {"", "a", 0, -1, -1},
        {"ab", "abc", 0, -1, -1},    {"abab", "ab", 1, -1, 2},   {"abc", "a", 0, -2, -1}};
    for (const Case& c : forward) {
        EXPECT_EQ(zvString(c.text).find(c.pattern, c.start, c.end), c.expected) << c.text << ' ' << c.pattern;
    }
    const Case backward[] = {{"abca", "a", -1, 0, 3}, {"abc", "a", -1, 1, -1},  {"abab", "ab", 2, 0, 0},
                             {"abab", "ab", 3, 0, 2}, {"abab", "ab", 3, 3, -1}, {"abc", "c", 3, 0, -1},
                             {"abc", "b", 2, -5, 1},  {"", "a", -1, 0, -1},     {"abc", "", -1, 0, -1}};
    for (const Case& c : backward) {
        EXPECT_EQ(zvString(c.text).reverseFind(c.pattern, c.start, c.end), c.expected)
            << c.text << ' ' << c.pattern;
    }
    EXPECT_EQ(zvString(u"xÄÖ").findNoCase(u"äö"), 1);
    EXPECT_EQ(zvString("aAbA").reverseFindNoCase("a", 2), 1);
    EXPECT_EQ(zvString("aaaa").count("aa"), 2);
    EXPECT_EQ(zvString("aXaxA").countNoCase("AX"), 2);
}

// Long strings are searched in blocks: matches across block boundaries must be found.
TEST(zvStringTest, FindsTheFirstMatchAtEveryPosition) {
    for (const std::string pattern : {"n", "ne", "needle"}) {
        for (std::size_t before = 1; before < 140; ++before) {
            std::string text;
            while (text.size() < before) {
                text += text.size() % 7 == 0 ? 'N' : 'e';
            }
            text.append(pattern).append(80, 'e').append(pattern);
            const zvString wide(text.c_str());
            EXPECT_EQ(wide.find(pattern.c_str()), static_cast<int>(before)) << pattern;
            EXPECT_EQ(wide.find(pattern.c_str(), static_cast<int>(before) + 1),
                      static_cast<int>(before + pattern.size() + 80));
            EXPECT_EQ(wide.find(pattern.c_str(), 0, static_cast<int>(before + pattern.size()) - 2), -1);
            EXPECT_EQ(wide.count(pattern.c_str()), 2);
        }
    }
}

TEST(zvStringTest, IgnoresCaseAsTheRuntimeDoes) {
    for (int left = 1; left < 0x250; ++left) {
        zvString lowered(static_cast<wchar16>(left));
        lowered.toLower();
        const auto lower = static_cast<wchar16>(std::towlower(static_cast<std::wint_t>(left)));
        ASSERT_EQ(lowered[0], lower) << left;
        for (const int right : {left, left ^ 0x20, static_cast<int>(lower), 0x212A}) {
            const bool same = lower == static_cast<wchar16>(std::towlower(static_cast<std::wint_t>(right)));
            ASSERT_EQ(
                zvString(static_cast<wchar16>(left)).equalsIgnoreCase(zvString(static_cast<wchar16>(right))),
                same)
                << left << ' ' << right;
        }
    }
}

TEST(zvStringTest, Replaces) {
    struct Case {
        const char *text, *from, *to, *expected;
        int start, end, matches;
        bool ignoreCase;
    };
    const Case cases[] = {
        {"aaaa", "aa", "b", "bb", 0, -1, 2, false},        {"aXbX", "X", "", "ab", 0, -1, 2, false},
        {"abc", "b", "12345", "a12345c", 0, -1, 1, false}, {"aaa", "a", "a", "aaa", 0, -1, 0, false},
        {"AaA", "A", "a", "aaa", 0, -1, 3, true},          {"abab", "ab", "x", "abx", 1, -1, 1, false},
        {"abab", "ab", "x", "xab", 0, 2, 1, false},        {"abc", "z", "x", "abc", 0, -1, 0, false},
        {"aBc", "b", "B", "aBc", 0, -1, 1, true},
    };
    for (const Case& c : cases) {
        zvString text(c.text);
        const int matches = c.ignoreCase ? text.replaceNoCase(c.from, c.to, c.start, c.end)
                                         : text.replace(c.from, c.to, c.start, c.end);
        EXPECT_EQ(matches, c.matches) << c.text;
        EXPECT_EQ(text, c.expected);
    }
    zvString self("aa");
    EXPECT_EQ(self.replace(self, "b"), 0);
    EXPECT_EQ(self.replace("a", self), 0);
}

TEST(zvStringTest, InsertsAndRepeatsTheTailInABufferWithRoom) {
    zvString exact("abcdef");
    EXPECT_TRUE(exact.insert("X", 1));
    EXPECT_EQ(exact, "aXbcdef");
    zvString roomy = withRoom("abcdef", 20);
    EXPECT_TRUE(roomy.insert("X", 1));
    EXPECT_EQ(roomy, "aXbbbbb");
    zvString longInsert = withRoom("abc", 20);
    EXPECT_TRUE(longInsert.insert("12345", 1));
    EXPECT_EQ(longInsert, "a12345bc");
    zvString none;
    EXPECT_FALSE(none.insert("x", 1));
    EXPECT_TRUE(none.insert("x", 0));
    EXPECT_EQ(none, "x");
    zvString text("ab");
    EXPECT_TRUE(text.insert("c", 2));
    EXPECT_FALSE(text.insert("x", 4) || text.insert("x", -1) || text.insert("", 0) || text.insert(text, 0));
    EXPECT_EQ(text, "abc");
}

TEST(zvStringTest, TakesSubstringsAndTrims) {
    const zvString text("abcdef");
    EXPECT_EQ(text.substr(2, 100), "cdef");
    EXPECT_EQ(text.substr(2, INT_MAX), "cdef");
    EXPECT_EQ(text.substr(1, 2), "bc");
    EXPECT_TRUE(text.substr(6, 1).empty() && text.substr(-1, 2).empty() && text.substr(1, -1).empty());
    for (const char* const blank : {"  a b \t", "a b", "\n\r a b"}) {
        zvString trimmed(blank);
        trimmed.trim();
        EXPECT_EQ(trimmed, "a b");
    }
    zvString spaces(" \t ");
    spaces.trim();
    EXPECT_TRUE(spaces.empty());
    zvString reversed("abc");
    reversed.reverse();
    EXPECT_EQ(reversed, "cba");
}

TEST(zvStringTest, IsOrderedByCodeUnits) {
    const zvString null;
    const zvString empty = withRoom("", 3);
    EXPECT_TRUE(zvString("abc") < zvString("abd") && zvString("ab") < zvString("abc"));
    EXPECT_TRUE(zvString("B") < zvString("a") && zvString("a") > zvString("B"));
    EXPECT_TRUE(zvString(u"\uFFFD") > zvString(u"\U0001F600"));
    EXPECT_TRUE(null < zvString("a") && zvString("a") > null && empty < zvString("a"));
    EXPECT_FALSE(null < empty || empty < null || null > empty || zvString("a") < zvString("a"));
    EXPECT_TRUE(null == empty);
    EXPECT_TRUE(zvString(u"stra\u00DFE \u00C4").equalsIgnoreCase(u"STRA\u00DFe \u00E4"));
}

TEST(zvStringTest, ReadsNumbers) {
    struct Case {
        const char* text;
        int expected;
    };
    const Case cases[] = {{"12", 12},
                          {"  -7x", -7},
                          {"+3", 3},
                          {"abc", 0},
                          {"", 0},
                          {"- 1", 0},
                          {"2147483647", INT_MAX},
                          {"2147483648", INT_MAX},
                          {"99999999999999999999999", INT_MAX},
                          {"-2147483648", INT_MIN},
                          {"-2147483649", INT_MIN},
                          {"0x10", 0}};
    for (const Case& c : cases) {
        EXPECT_EQ(zvString::convertUnicodeToInt(c.text), c.expected) << c.text;
        EXPECT_EQ(zvString::convertUnicodeToLong(c.text), c.expected) << c.text;
        EXPECT_EQ(zvString::convertUnicodeToBool(c.text), c.expected != 0) << c.text;
    }
    for (const wchar_t* const text :
         {L"0.1", L"1.25", L"7.", L".5", L"123456789012345", L"1234567.8901234", L"1.2.3",
          L"0.30000000000001", L"12a", L"1e3", L"0x1p3", L"1,5", L"99999999999999.5"}) {
        const std::u16string units(text, text + std::wcslen(text));
        EXPECT_EQ(zvString::convertUnicodeToDouble(units.c_str()), std::wcstod(text, nullptr)) << text;
    }
    EXPECT_DOUBLE_EQ(zvString::convertUnicodeToDouble(" -2.5e1 9"), -25.0);
    EXPECT_DOUBLE_EQ(zvString::convertUnicodeToDouble((std::string(300, '0') + "1.5").c_str()), 1.5);
    EXPECT_DOUBLE_EQ(zvString::convertUnicodeToDouble("x"), 0.0);
    EXPECT_TRUE(zvString("TRUE").toBoolean() && zvString("1").toBoolean());
    EXPECT_FALSE(zvString("yes").toBoolean() || zvString("2").toBoolean() || zvString().toBoolean());
}

TEST(zvStringTest, KeepsTextBeyondAsciiBothWays) {
    if (!localeIsUtf8()) {
        GTEST_SKIP() << "a UTF-8 locale";
    }
    const char* const mixed =
        "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80!";  // characters of two, three and four bytes
    const zvString text(mixed);
    EXPECT_EQ(text, u"\u00E4 \u20AC \U0001F600!");
    EXPECT_EQ(text.size(), 7);
    EXPECT_STREQ(text.getChars(), mixed);
    EXPECT_STREQ(zvCharString(text).data(), mixed);
    EXPECT_EQ(zvString(u"\xD83D"), zvString(wchar16{0xD83D}));
    EXPECT_EQ(zvString(wchar16{0xD83D}).getChars(), nullptr) << "half a pair has no narrow form";
    EXPECT_TRUE(zvString("a\xFF").empty()) << "invalid text";
    EXPECT_TRUE(zvString("\xF7\x9F\x98\x84").empty()) << "a number beyond the last character";
    EXPECT_TRUE(zvString(mixed, 1).empty()) << "a character cut in two";
    EXPECT_EQ(zvString(mixed, 2), u"\u00E4");

    wchar16* wide = nullptr;
    EXPECT_EQ(zvString::convertStringToUnicode(mixed, 5, wide), 4) << "a pair is not cut in two";
    EXPECT_EQ(zvString(wide), u"\u00E4 \u20AC ");
    zvString::releaseUnicode(wide);
    EXPECT_EQ(wide, nullptr);
    char* narrowText = nullptr;
    EXPECT_EQ(zvString::convertUnicodeToString(text.data(), 1, narrowText), 2);
    EXPECT_STREQ(narrowText, "\xC3\xA4");
    zvString::releaseString(narrowText);
}

TEST(zvStringTest, TheCLocaleRefusesWhatItCannotEncode) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    EXPECT_STREQ(zvString("plain").getChars(), "plain");
    const zvString euro(u"\u20AC");
    EXPECT_EQ(euro.getChars(), nullptr);
    EXPECT_STREQ(zvCharString(euro).data(), "");
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_NE(euro.getChars(), nullptr) << "a failed conversion is tried again";
}

TEST(zvStringTest, StaticConvertersReturnNullForNull) {
    wchar16* wide = nullptr;
    char* narrowText = nullptr;
    EXPECT_EQ(zvString::convertStringToUnicode(nullptr, 3, wide), 0);
    EXPECT_EQ(zvString::convertStringToUnicode("abc", 0, wide), 0);
    EXPECT_EQ(zvString::convertUnicodeToString(nullptr, 3, narrowText), 0);
    EXPECT_EQ(zvString::convertToLowerCase(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(zvString::convertToUpperCase(static_cast<const wchar16*>(nullptr)), nullptr);
    char* lower = zvString::convertToLowerCase("aBC");
    EXPECT_STREQ(lower, "abc");
    zvString::releaseString(lower);
    wchar16* upper = zvString::convertToUpperCase(zvString(u"a\u00E4").data());
    EXPECT_EQ(zvString(upper), u"A\u00C4");
    zvString::releaseUnicode(upper);
    zvString::releaseString(lower);
}

}  // namespace
