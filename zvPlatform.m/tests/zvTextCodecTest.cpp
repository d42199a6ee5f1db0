#include "zvTextCodec.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "zvSurrogate.h"
#include "zvTestSupport.h"

namespace {

// Only UTF-8 has its own codec; other encodings are converted by the runtime.
class zvTextCodecTest : public testing::Test {
protected:
    void SetUp() override {
        if (!localeIsUtf8()) {
            GTEST_SKIP() << "a UTF-8 locale";
        }
    }
};

// The reference: the runtime's conversion as UTF-16. Empty for invalid text, and for code points beyond
// U+10FFFF, which the runtime accepts.
std::vector<wchar16> widenedByRuntime(const std::string& text) {
    std::vector<wchar_t> wide(text.size() + 1);
    const std::size_t length = std::mbstowcs(wide.data(), text.c_str(), wide.size());
    std::vector<wchar16> units;
    for (std::size_t i = 0; length != static_cast<std::size_t>(-1) && i < length; ++i) {
        const auto character = static_cast<char32_t>(wide[i]);
        if (character > 0x10FFFF) {
            return {};
        }
        if (character > 0xFFFF) {
            units.push_back(zvSurrogate::highOf(character));
            units.push_back(zvSurrogate::lowOf(character));
        } else {
            units.push_back(static_cast<wchar16>(character));
        }
    }
    return units;
}

void expectSameAsRuntime(const std::string& text) {
    const std::vector<wchar16> expected = widenedByRuntime(text);
    std::vector<wchar16> units(text.size());
    units.resize(zvTextCodec::widen(text.c_str(), units.data(), units.size()));
    ASSERT_EQ(units, expected) << testing::PrintToString(text);
    ASSERT_EQ(zvTextCodec::wideLength(text.c_str()),
              expected.empty() ? zvTextCodec::unconvertible : expected.size())
        << testing::PrintToString(text);
}

// Every lead byte followed by the boundary values of continuation bytes: overlong forms, surrogates, code
// points beyond U+10FFFF and truncated characters.
TEST_F(zvTextCodecTest, DecodesLikeTheRuntime) {
    const std::string edges = "A\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xE2";
    for (int lead = 0x80; lead <= 0xFF; ++lead) {
        const std::string first = "a" + std::string(1, static_cast<char>(lead));
        expectSameAsRuntime(first);
        for (const char second : edges) {
            expectSameAsRuntime(first + second);
            for (const char third : edges) {
                expectSameAsRuntime(first + second + third);
                expectSameAsRuntime(first + second + third + '\x80');
                expectSameAsRuntime(first + second + third + "\xBFz");
            }
        }
    }
}

TEST_F(zvTextCodecTest, EveryCharacterRoundTrips) {
    for (char32_t character = 1; character <= 0x10FFFF; character += character < 0x11000 ? 1 : 251) {
        wchar16 units[2] = {static_cast<wchar16>(character), 0};
        const std::size_t count = character > 0xFFFF ? 2 : 1;
        if (count == 2) {
            units[0] = zvSurrogate::highOf(character);
            units[1] = zvSurrogate::lowOf(character);
        }
        const std::size_t bytes = zvTextCodec::narrowLength(units, count);
        if (character >= 0xD800 && character <= 0xDFFF) {
            ASSERT_EQ(bytes, zvTextCodec::unconvertible) << static_cast<unsigned>(character);
            continue;
        }
        std::string text(bytes, '\0');
        zvTextCodec::narrow(units, count, text.data());
        ASSERT_EQ(widenedByRuntime(text), std::vector<wchar16>(units, units + count))
            << static_cast<unsigned>(character);
    }
}

TEST_F(zvTextCodecTest, ALoneSurrogateIsUnconvertible) {
    using namespace std::string_literals;
    for (const std::u16string& text :
         {u"\xD83D\xDE00\xD83D"s, u"\xDE00\xD83D\xDE00"s, u"\xD83D\xD83D\xDE00"s, u"\xD83Dz\xDE00"s}) {
        const std::vector<wchar16> units(text.begin(), text.end());
        EXPECT_EQ(zvTextCodec::narrowLength(units.data(), units.size()), zvTextCodec::unconvertible);
    }
}

}  // namespace
