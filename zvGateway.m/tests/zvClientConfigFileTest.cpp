#include "zvClientConfigFile.h"

#include <gtest/gtest.h>

namespace {

using Fault = zvClientConfigFile::Fault;

TEST(zvClientConfigFileTest, ReadsLinesAsTheLibraryDoes) {
    const struct {
        const char* content;
        const char* value;  // of the key "a"; null for none
        int faultyLine;     // 0 for none
        Fault fault;
    } cases[] = {{"", nullptr, 0, Fault::none},
                 {"# a=1\n\n", nullptr, 0, Fault::none},
                 {"a=1", "1", 0, Fault::none},
                 {"b=2\r\na= 1 \r\n", "1", 0, Fault::none},
                 {"a=1=2\n", "1=2", 0, Fault::none},
                 {"aa=2\na =3\n", nullptr, 0, Fault::none},
                 {"a=1\n\nnothing\nb=2\n", "1", 3, Fault::noPair},
                 {"=1\na=2\n", "2", 1, Fault::noPair},
                 {"a=\n", nullptr, 1, Fault::noPair},
                 {" \n", nullptr, 1, Fault::noPair},
                 {"a= \n", "", 0, Fault::none},
                 {"b=1\r\n\r\na=2\r\n", "2", 2, Fault::noPair},
                 {"a=1\nb=2\na=3\n", "1", 3, Fault::repeatedKey}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.content);
        const zvClientConfigFile file(c.content);
        EXPECT_EQ(file.value("a").has_value(), c.value != nullptr);
        EXPECT_EQ(file.value("a").value_or(zvString()), c.value == nullptr ? "" : c.value);
        const zvClientConfigFile::Line* const line = file.firstFaulty();
        ASSERT_EQ(line == nullptr, c.faultyLine == 0);
        if (line != nullptr) {
            EXPECT_EQ(line->number, c.faultyLine);
            EXPECT_EQ(line->fault, c.fault);
        }
    }
    EXPECT_EQ(zvClientConfigFile("a= 1 \r\n").lines().front().value, " 1 ");
    EXPECT_EQ(zvClientConfigFile("a=1\nb=2\na=secret\n").firstFaulty()->faultText(),
              "\"a\" is in line 1 already, which counts; what follows may not be read");
}

}  // namespace
