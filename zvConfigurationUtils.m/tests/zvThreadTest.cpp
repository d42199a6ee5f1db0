// Eight threads, each with its own strings, trees and parsers, after the singletons were created.
// ThreadSanitizer detects data races; without it only the results are checked.
#include <array>
#include <thread>
#include <utility>

#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvCndContext.h"
#include "zvCndParsingUtils.h"
#include "zvConfigurationTestSupport.h"
#include "zvDateTime.h"
#include "zvEventArguments.h"
#include "zvProperties.h"
#include "zvStringTokeniser.h"

namespace {

constexpr int threads = 8;
constexpr int rounds = 50;

// Each returns whether the results are correct: GoogleTest's expectations take a lock, which would hide
// races.
bool textsHold(const std::string& own) {
    zvString text(("a \xC3\xA4 " + own).c_str());
    zvString changed(text);
    changed.toUpper();
    changed.replaceNoCase("a ", "b,");
    zvStringTokeniser tokeniser(changed, ',');
    tokeniser.tokenise();
    zvStringToStringMap map;
    map.setValue(text, changed);
    return tokeniser.getToken(0) == "b" && map.getValue(text) == changed &&
           changed.equalsIgnoreCase(map.getValue(0)) && narrow(text).size() == own.size() + 5;
}

bool datesHold(int number) {
    zvDateTime date;
    date.setDate("21/05/2011::11-12-22", "DD/MM/YYYY::hh-mm-ss");
    date.setSecond(static_cast<short>(number));
    return zvDateTime(date.getDateTimeInSeconds()) == date;
}

bool conditionsHold(const std::string& own) {
    const std::string text = "{number} = '" + own + "' AND NOT ( {missing} = '1' OR {number} = 'other' )";
    zvCndContext context;
    zvAttribute attribute("number", zvValue(zvString(own.c_str())));
    context.addAttribute(attribute);
    const zvCndCondition condition = zvCndParsingUtils::createConditionStructure(text.c_str());
    const zvCndCondition again =
        zvCndParsingUtils::createConditionStructure(zvCndParsingUtils::createConditionString(condition));
    bool isRefused = false;
    try {
        zvCndParsingUtils::createConditionStructure("{number} = ");
    } catch (const zvException& refusal) {
        isRefused = !refusal.getResult().getMessage().empty();
    }
    return condition->evaluate(context) && again->evaluate(context) && isRefused;
}

bool documentsHold(const std::string& own) {
    zvAttachmentList list;
    const std::string document =
        "<AttachmentList><Attachment><FilePath>" + own + "</FilePath></Attachment></AttachmentList>";
    const bool isRead = zvAttachmentParser().parse(&list, document.c_str(), false).isOk();
    zvXMLParser tree;
    zvString written;
    tree.createXMLTree("root");
    tree.addMemberValue(own.c_str());
    tree.writeTreeToString(written, "UTF-8");
    return isRead && list.getAttachment(0)->getFilePath() == own.c_str() && written.find(own.c_str()) != -1 &&
           !zvXMLParser("<broken", false).loadXMLFromString("<root", false);
}

bool filesHold(const std::string& path, const std::string& own) {
    zvProperties properties;
    zvEventArguments* const arguments =
        zvEventArguments::parseEventArguments(("\"Number=" + own + "\" \"LoginPassword=x\"").c_str());
    const bool isParsed = arguments->getEventArgumentValue("Number") == own.c_str();
    arguments->destroy();
    return properties.parse(path.c_str()).isOk() && properties.getPropertyValue("own") == own.c_str() &&
           isParsed;
}

bool lookupsHold(const zvCfgConfigManager& manager) {
    zvCfgTransitionPathList paths;
    return manager.getObjectsByLocalType("Part")->size() == 2 && manager.isFileAllowedForExport("PDF") &&
           manager.getTransitionPaths("INWORK", "RELEASED", "Part", "", paths) &&
           manager.getDefaultViewInCollection("Engineering")->getLocalName() == "Design";
}

// Threads that only read one map may use it together, by name and by index.
bool entriesHold(const zvStringToStringMap& map, int round) {
    for (int i = 0; i < map.size(); ++i) {
        const int index = (i * 7 + round) % map.size();
        if (map.getKey(index) != zvString(100 + index) || map.getValue(index) != zvString(index) ||
            map.getValue(zvString(100 + index)) != zvString(index)) {
            return false;
        }
    }
    return true;
}

using zvThreadTest = zvConfigurationTest;

TEST_F(zvThreadTest, ThreadsWithTheirOwnObjectsDoNotRace) {
    ASSERT_TRUE(zvCfgMgrXmlParser().parse(ZV_SAMPLE_CONFIGURATION, true).isOk());
    const zvCfgConfigManager& shared = manager();
    zvStringToStringMap map;
    for (int i = 0; i < 100; ++i) {
        map.add(100 + i, i);
    }
    std::array<int, threads> good{};
    std::array<std::thread, threads> running;
    for (std::size_t i = 0; i < threads; ++i) {
        const std::string own = "thread" + std::to_string(i);
        const std::string path = m_folder.write(own + ".ini", "own=" + own + "\n");
        running[i] = std::thread([&shared, &map = std::as_const(map), &count = good[i], own, path] {
            for (int round = 0; round < rounds; ++round) {
                const bool holds = textsHold(own) && datesHold(round) && conditionsHold(own) &&
                                   documentsHold(own) && filesHold(path, own) && lookupsHold(shared) &&
                                   entriesHold(map, round);
                count += holds ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : running) {
        thread.join();
    }
    for (const int count : good) {
        EXPECT_EQ(count, rounds);
    }
}

}  // namespace
