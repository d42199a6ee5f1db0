#include "zvEventArguments.h"

#include <memory>

#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvSecrets.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;

struct Destroy {
    void operator()(zvEventArguments* arguments) const { arguments->destroy(); }
};
using Arguments = std::unique_ptr<zvEventArguments, Destroy>;

Arguments parse(std::vector<std::string> commandLine) {
    commandLine.insert(commandLine.begin(), "program");
    std::vector<char*> argv;
    argv.reserve(commandLine.size());
    for (std::string& argument : commandLine) {
        argv.push_back(argument.data());
    }
    return Arguments(zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
}

std::string contentOf(const zvEventArguments& arguments) {
    std::string content;
    arguments.forEach([&content](const zvString& key, const zvString& value) {
        content += "<" + narrow(key) + "|" + narrow(value) + ">";
    });
    return content;
}

using zvEventArgumentsTest = zvLoggedTest;

TEST_F(zvEventArgumentsTest, EventsHaveTheirTexts) {
    const auto text = [](int event) {
        return narrow(zvEventArguments::getStringForEventNameEnum(static_cast<zvEventNameEnum>(event)));
    };
    EXPECT_EQ(text(zvEventMirror), "mirror");
    EXPECT_EQ(text(zvEventTransferLOCFromKpdm), "transferLOCFromKpdm");
    EXPECT_EQ(text(zvEventTransferLocFromLk), "transferLocFromLk");
    EXPECT_EQ(text(zvEventBomExchangeMain), "bomExchangeMain");
    EXPECT_EQ(text(65), "mirrorFromLK");
    EXPECT_EQ(text(66), "");
    EXPECT_EQ(text(-1), "");
    const zvEventArguments event(zvEventLkPublishAction, "me");
    EXPECT_EQ(contentOf(event), "<EventName|lkPublishAction><EventTriggeredByUser|me>");
}

TEST_F(zvEventArgumentsTest, SplitsTheCommandLine) {
    struct Case {
        std::vector<std::string> commandLine;
        const char* expected;
        Lines warnings;
    };
    const Case cases[] = {
        {{"A=1", "B=x=y", "flag"}, "<A|1><B|x=y>", {}},
        {{"a\\=b=c"}, "<a=b|c>", {}},
        {{"a\\==b"}, "<a=|b>", {}},
        {{"\\=\\=x=1"}, "<==x|1>", {}},
        {{"a\\=b"}, "", {"a=b not Added to argument"}},
        {{"=v", "k=", ""}, "<k|>", {"=v not Added to argument", "Empty Argument received"}},
        {{"A=1", "A=2"},
         "<A|1>",
         {"Argument could not be added to the map with Key = \"A\" and Value = 2\"",
          "A=2 not Added to argument"}},
    };
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        EXPECT_EQ(contentOf(*parse(c.commandLine)), c.expected) << c.commandLine[0];
        EXPECT_EQ(zvRecordingLogger::lines("warn"), c.warnings) << c.commandLine[0];
    }
}

TEST_F(zvEventArgumentsTest, SecretsReachNoLogLine) {
    const Arguments arguments =
        parse({"EventName=x", "LoginPassword=s3cret", "KPDMPasswd=s3cret", "flag",
               "LoginPassword=s3cret again", "Note=the KPDMPasswd is s3cret", "LoginPassword\\=s3cret",
               "Note=LoginPassword s3cret", "My LoginPassword\\=s3cret=x", "My LoginPassword\\=s3cret=y"});
    const Arguments line(
        zvEventArguments::parseEventArguments("\"LoginPassword=s3cret\" \"LoginPassword=s3cret2\" "
                                              "\"KPDMPasswd\\=s3cret\" \"KPDMPasswd\\=s3cret=1\" "
                                              "\"KPDMPasswd\\=s3cret=2\""));
    EXPECT_EQ(arguments->numEventArguments(), 5);
    EXPECT_EQ(arguments->getEventArgumentValue("LoginPassword"), "s3cret");
    for (const std::string& text : zvRecordingLogger::lines()) {
        EXPECT_EQ(text.find("s3cret"), std::string::npos) << text;
    }
    const Lines info = zvRecordingLogger::lines("info");
    const Lines expected = {"zvEventArguments::parseEventArguments(int argc, char** argv)",
                            "Command Line arguments recieved : ",
                            "> EventName=x",
                            "> LoginPassword=********",
                            "> KPDMPasswd=********",
                            "> flag"};
    EXPECT_EQ(Lines(info.begin(), info.begin() + 6), expected);
    EXPECT_EQ(zvRecordingLogger::lines("warn").front(),
              "Argument could not be added to the map with Key = \"LoginPassword\" and Value = ********\"");
    const Lines warnings = {
        "Argument could not be added to the map with Key = \"KPDMPasswd\" and Value = ********\"",
        "KPDMPasswd=******** not added to Arguments"};
    const Lines found = zvRecordingLogger::lines("warn");
    EXPECT_EQ(Lines(found.end() - 2, found.end()), warnings);
}

TEST_F(zvEventArgumentsTest, KeysCanBeAddedToTheSecrets) {
    zvSecrets::addKey("Pin");
    zvSecrets::addKey("a=b");
    const Arguments arguments =
        parse({"Pin=s3cret", "Pin=s3cret again", "Pinboard=shown", "Note=Pin is shown", "Pin\\=shown=1",
               "a\\=b=s3cret", "a=b=s3cret", "a\\\\=b=shown"});
    EXPECT_EQ(zvSecrets::maskedValue("Pin", arguments->getEventArgumentValue("Pin")), "********");
    const Lines info = zvRecordingLogger::lines("info");
    const Lines expected = {"> Pin=********",  "> Pin=********", "> Pinboard=shown", "> Note=Pin is shown",
                            "> Pin\\=shown=1", "> a=b=********", "> a=b=********",   "> a\\\\=b=shown"};
    EXPECT_EQ(Lines(info.begin() + 2, info.end()), expected);
    for (const std::string& text : zvRecordingLogger::lines()) {
        EXPECT_EQ(text.find("s3cret"), std::string::npos) << text;
    }
}

TEST_F(zvEventArgumentsTest, SplitsOneString) {
    struct Case {
        const char *line, *expected;
        Lines warnings;
    };
    const Case cases[] = {{"\"A=1\" \"B=2\" \"C=x y\"", "<A|1><B|2><C|x y>", {}},
                          {"A=1", "<A|1>", {}},
                          {"\"A=1\"  ", "<A|1>", {}},
                          {"\"A=1\" \"novalue\" \"B=2\"", "<A|1><B|2>", {"novalue not added to Arguments"}},
                          {"\"", "", {" not added to Arguments"}},
                          {"\"A=\"", "<A|>", {}}};
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        const Arguments arguments(zvEventArguments::parseEventArguments(c.line));
        EXPECT_EQ(contentOf(*arguments), c.expected) << c.line;
        EXPECT_EQ(zvRecordingLogger::lines("warn"), c.warnings) << c.line;
    }
    const Arguments none(zvEventArguments::parseEventArguments(zvString()));
    EXPECT_EQ(none->numEventArguments(), 0);
    EXPECT_EQ(zvRecordingLogger::lines("error"), Lines{"Empty argument received"});
}

TEST_F(zvEventArgumentsTest, ACopyHasArgumentsOfItsOwn) {
    zvEventArguments event(zvEventMirror, "me");
    // The setters are const, but modify the object.
    zvEventArguments copy(event);  // NOLINT(performance-unnecessary-copy-initialization)
    copy.setEventArgument("EventName", "changed");
    EXPECT_TRUE(copy.addEventArgument("New", "1"));
    EXPECT_EQ(contentOf(event), "<EventName|mirror><EventTriggeredByUser|me>");
    EXPECT_FALSE(event.addEventArgument("EventName", "other"));
    zvEventArguments assigned(zvEventMirrorEBOM, "you");
    assigned = event;
    EXPECT_EQ(assigned.getEventArgumentValueAt(0), "mirror");
    EXPECT_EQ(assigned.getEventArgumentNameAt(1), "EventTriggeredByUser");
    EXPECT_TRUE(assigned.getEventArgumentNameAt(2).empty() && assigned.getEventArgumentValueAt(-1).empty());
}

TEST_F(zvEventArgumentsTest, EveryEventGetsADirectoryOfItsOwn) {
    const zvString root = m_folder.path().string().c_str();
    zvEventArguments first(zvEventMirror, "me");
    zvEventArguments second(zvEventMirror, "me");
    EXPECT_TRUE(zvEventArguments::populateEventArguments(root, first).isOk());
    EXPECT_TRUE(zvEventArguments::populateEventArguments(root, second).isOk());
    const std::string name = narrow(first.getEventArgumentValue("EventShadowDir"));
    EXPECT_NEAR(std::stod(name), static_cast<double>(zvPlatform::currentTime()), 5.0);
    EXPECT_GT(second.getEventArgumentValue("EventShadowDir"), first.getEventArgumentValue("EventShadowDir"));
    EXPECT_EQ(first.getEventArgumentValue("DataFileName"), (name + "_data.xml").c_str());
    EXPECT_EQ(first.getEventArgumentValue("AttachmentsFileName"), (name + "_attachments.xml").c_str());
    for (const char* const suffix : {"_data.xml", "_attachments.xml"}) {
        EXPECT_EQ(std::filesystem::file_size(m_folder.path() / name / (name + suffix)), 0U);
    }
    EXPECT_EQ(zvRecordingLogger::lines().front(),
              "debug: EventShadowDir successfully created: " + m_folder.path().string() + "\\" + name);
}

TEST_F(zvEventArgumentsTest, NamesThatAreTakenByLinksArePassedOver) {
    if (onWindows) {
        GTEST_SKIP() << "links need a right that tests do not have";
    }
    const zvInt64 now = zvPlatform::currentTime();
    constexpr int taken = 30;
    for (int i = 0; i < taken; ++i) {
        std::filesystem::create_symlink("nowhere", m_folder.path() / std::to_string(now + i));
    }
    zvEventArguments event(zvEventMirror, "me");
    EXPECT_TRUE(zvEventArguments::populateEventArguments(m_folder.path().string().c_str(), event).isOk());
    EXPECT_EQ(event.getEventArgumentValue("EventShadowDir"), std::to_string(now + taken).c_str());
}

TEST_F(zvEventArgumentsTest, ARootThatCannotHoldDirectoriesIsRefused) {
    const std::string missing = m_folder.file("missing");
    const std::string file = m_folder.write("file", "");
    zvEventArguments event(zvEventMirror, "me");
    EXPECT_EQ(zvEventArguments::populateEventArguments("", event).getResult(), -1);
    EXPECT_EQ(zvEventArguments::populateEventArguments(missing.c_str(), event).getResult(), -1);
    EXPECT_EQ(zvEventArguments::populateEventArguments(file.c_str(), event).getResult(), -1);
    const Lines errors = zvRecordingLogger::lines("error");
    ASSERT_EQ(errors.size(), 4U);
    EXPECT_EQ(errors[0], "Empty RootShadowDir name is recieved in populateEventArguments");
    EXPECT_EQ(errors[1], "Error in accessing RootShadowDir : " + missing);
    EXPECT_EQ(errors[3].find("Error in creating EventShadowDir \"" + file + "\\"), 0U);
    EXPECT_EQ(event.numEventArguments(), 2);
}

TEST_F(zvEventArgumentsTest, StripsTheRootFromTheDirectory) {
    struct Case {
        const char *root, *event, *expected, *error;
    };
    const Case cases[] = {
        {"C:\\s", "C:\\s\\1300000000", "1300000000", nullptr},
        {"/s", "/s/1300000000", "1300000000", nullptr},
        {"C:\\s", "C:\\s", "",
         "The EventShadowDir information cannot be extracted from the given input.                 "
         "Please check the input values. RootShadowDir:C:\\s EventShadowDir: C:\\s"},
        {"", "C:\\s", "",
         "The EventShadowDir information cannot be extracted from the given input.                 "
         "Please check the input values. RootShadowDir: EventShadowDir: C:\\s"},
        {"C:\\s", "D:\\s\\1", "",
         "The EventShadowDir doesn't contain the RootShadowDir path.                     "
         "Please check the input values. RootShadowDir:C:\\s EventShadowDir: D:\\s\\1"},
        {"C:\\s", "C:\\s\\", "",
         "The EventShadowDir info cannot be extracted from given inout.                     "
         "Please check the input values. RootShadowDir:C:\\s EventShadowDir: C:\\s\\"}};
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        zvEventArguments in(zvEventMirror, "me");
        in.addEventArgument("RootShadowDir", c.root);
        in.addEventArgument("EventShadowDir", c.event);
        zvEventArguments out(zvEventMirror, "me");
        EXPECT_EQ(zvEventArguments::populateEventArguments(in, out).isOk(), c.error == nullptr);
        EXPECT_EQ(out.getEventArgumentValue("EventShadowDir"), c.expected);
        EXPECT_EQ(zvRecordingLogger::lines("error"), c.error == nullptr ? Lines{} : Lines{c.error});
    }
}

}  // namespace
