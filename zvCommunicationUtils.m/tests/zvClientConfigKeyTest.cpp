#include "zvClientConfigKey.h"

#include <gtest/gtest.h>

#include "zvTestSupport.h"

namespace {

TEST(zvClientConfigKeyTest, AValueThatCannotBeUsedIsTold) {
    const struct {
        const char* key;
        const char* value;
        const char* fault;  // the beginning
    } cases[] = {
        {"local-server-url", "http://localhost:8080/gateway/events", ""},
        {"local-server-url", "HTTPS://[::1]/a?b=c", ""},
        {"local-server-url", "localhost:8080/events", "it is no URL that begins with http:// or https://"},
        {"local-server-url", "ftp://localhost/", "it is no URL that begins with http:// or https://"},
        {"local-server-url", "http://local host/", "it is no URL that begins with http:// or https://: "},
        {"local-server-url", "http://localhost:99999/",
         "it is no URL that begins with http:// or https://: "},
        {"local-server-url", "http://jdoe:Secret-7@/", "it is no URL that begins with http:// or https://: "},
        {"http-connect-timeout", "1", ""},
        {"http-connect-timeout", "86400", ""},
        {"http-connect-timeout", "0", "\"0\" is no whole number from 1 to 86400"},
        {"http-stall-timeout", "1e3", "\"1e3\" is no whole number from 1 to 86400"},
        {"http-stall-timeout", "", "\"\" is no whole number from 1 to 86400"},
        {"http-retries", "1000", ""},
        {"http-retries", "+5", "\"+5\" is no whole number from 0 to 1000"},
        {"http-retry-delay", "0.5", ""},
        {"http-retry-delay", "60.1", "\"60.1\" is no number from 0 to 60"},
        {"http-retry-delay", "nan", "\"nan\" is no number from 0 to 60"},
        {"http-ca-file", "/nowhere", ""},
        {"secret-keys", "ApiToken, Pin", ""},
        {"shadow-mode", "umask", ""},
        {"shadow-mode", "750", ""},
        {"shadow-mode", "0777", ""},
        {"shadow-mode", "644", "\"644\" is neither \"umask\" nor from 700 to 777"},
        {"shadow-mode", "1777", "\"1777\" is neither \"umask\" nor from 700 to 777"},
        {"shadow-mode", "778", "\"778\" is neither \"umask\" nor from 700 to 777"},
    };
    for (const auto& [name, value, fault] : cases) {
        const zvClientConfigKey* const key = zvClientConfigKey::find(name);
        ASSERT_NE(key, nullptr) << name;
        const std::string found = narrow(key->faultOf(value));
        EXPECT_EQ(found.substr(0, std::string(fault).size()), fault) << value;
        EXPECT_EQ(found.empty(), std::string(fault).empty()) << value << ": " << found;
        EXPECT_EQ(found.find("Secret-7"), std::string::npos);
    }
    EXPECT_EQ(zvClientConfigKey::find("http-retry"), nullptr);
}

}  // namespace
