#include "zvSecretValues.h"

#include <gtest/gtest.h>

#include <string>

#include "zvTestSupport.h"

namespace {

class zvSecretValuesTest : public zvLoggedTest {
protected:
    zvEventArguments m_args{zvEventMirror, "anna"};
};

TEST_F(zvSecretValuesTest, EveryFormOfASecretIsMasked) {
    m_args.setEventArgument("LoginPassword", "p w&");
    m_args.setEventArgument("KPDMPasswd", "p w&longer");
    m_args.setEventArgument("Remark", "anna");
    const zvSecretValues secrets(m_args);
    const struct {
        const char* text;
        const char* masked;
    } cases[] = {
        {"", ""},
        {"nothing of anna's", "nothing of anna's"},
        {"p w", "p w"},
        {"<p w&>", "<********>"},
        {"a=p%20w%26&b=p+w%26", "a=********&b=********"},
        {"p w&longer p w&", "******** ********"},
        {"p w&p w&", "****************"},
    };
    for (const auto& [text, masked] : cases) {
        EXPECT_EQ(secrets.masked(text, 100), masked);
    }
    EXPECT_EQ(zvSecretValues(zvEventArguments(zvEventMirror, "anna")).masked("p w&", 100), "p w&");
}

TEST_F(zvSecretValuesTest, NoPartOfASecretIsLeftAtTheLimit) {
    const std::string secret = "abcdefghijklmnop";
    m_args.setEventArgument("LoginPassword", secret.c_str());
    const zvSecretValues secrets(m_args);
    for (std::size_t before = 0; before <= 20; ++before) {
        // What a receiver keeps of an endless answer.
        std::string text(before, '.');
        text.append(secret).append(secret).append(secret).resize(20 + secrets.longest());
        const std::string masked = secrets.masked(text, 20);
        EXPECT_LE(masked.size(), 20u);
        EXPECT_EQ(masked.find_first_of("abcdefghijklmnop"), std::string::npos) << masked;
    }
    EXPECT_EQ(secrets.masked("aaaa\xc3\xa4", 5), "aaaa") << "half a character";
}

}  // namespace
