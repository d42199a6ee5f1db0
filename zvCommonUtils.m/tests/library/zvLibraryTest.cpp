// Whatever crosses the DLL's boundary: strings, objects, exceptions, virtual calls and calls of the logging
// library.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

#include "zvCharString.h"
#include "zvCndParsingUtils.h"
#include "zvCommonUtils.h"
#include "zvEventArguments.h"
#include "zvException.h"
#include "zvLogger.h"
#include "zvRecordingLogger.h"
#include "zvValue.h"
#include "zvXMLParser.h"

namespace {

std::string narrow(const zvString& text) { return zvCharString(text).data(); }

TEST(zvLibraryTest, TextsAndObjectsAreMadeOnOneSideAndFreedOnTheOther) {
    zvString text("a");
    text += u"\u20ACb";
    EXPECT_TRUE(("x" + text) == u"xa\u20ACb");
    char* raw = zvString::convertUnicodeToString(zvString("raw").data());
    EXPECT_STREQ(raw, "raw");
    zvString::releaseString(raw);
    EXPECT_EQ(raw, nullptr);
    zvEventArguments* const arguments = zvEventArguments::parseEventArguments(zvString("EventName=mirror"));
    ASSERT_NE(arguments, nullptr);
    EXPECT_EQ(narrow(arguments->getEventArgumentValue("EventName")), "mirror");
    arguments->destroy();
    const std::unique_ptr<zvValue> value(new zvValue(7));
    EXPECT_EQ(narrow(value->getValue()), "7");
}

TEST(zvLibraryTest, ExceptionsArriveInTheProgram) {
    for (int times = 0; times < 3; ++times) {
        try {
            zvValue().getIntValue();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const zvException& exception) {
            EXPECT_EQ(narrow(exception.getResult().getMessage()),
                      "Data cannot be converted to integer datatype");
        }
    }
}

TEST(zvLibraryTest, LogsThroughTheSitesLibrary) {
    ::_putenv(("GATEWAY_HOME=" + std::filesystem::temp_directory_path().string()).c_str());
    zvLogger::destroyInstance();
    zvRecordingLogger::reset();
    ASSERT_NE(zvLogger::getInstance(), nullptr);
    zvLogger::getInstance()->logInfo("told", "C:\\a\\f.txt", 5);
    ASSERT_EQ(zvRecordingLogger::configurations().size(), 1U);
    ASSERT_FALSE(zvRecordingLogger::events().empty());
    EXPECT_EQ(zvRecordingLogger::events().back().message, "f.txt[5] told");
    zvXMLParser parser;
    EXPECT_FALSE(parser.loadXMLFromString("http://nowhere/x.xml", true));
    EXPECT_FALSE(zvRecordingLogger::lines("error").empty());
    EXPECT_TRUE(parser.loadXMLFromString("<a x='1'/>", false));
    zvLogger::destroyInstance();
}

}  // namespace
