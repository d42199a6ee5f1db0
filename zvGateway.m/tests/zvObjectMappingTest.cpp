#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zvConfigurationTestSupport.h"
#include "zvObjectMapping.h"

namespace {

using Direction = zvObjectMapping::Direction;

// The attributes that were mapped and, after a bar, the names of the values that were not; "-" if no rule
// holds.
std::string mapped(Direction direction, const zvObjectMapping::Values& values) {
    zvObjectMapping mapping(direction, values);
    if (!mapping.map(direction == Direction::localToRemote
                         ? zvCfgConfigManager::getCfgConfigManager()->getObjectsByLocalType("L")
                         : zvCfgConfigManager::getCfgConfigManager()->getObjectsByRemoteType("R"))) {
        return "-";
    }
    std::string text;
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        text += narrow(attribute.from) + ">" + narrow(attribute.to) + "=" + narrow(attribute.value) +
                (attribute.isDefault ? "* " : " ");
    }
    text += "|";
    for (const zvString& name : mapping.unmapped()) {
        text += " " + narrow(name);
    }
    return text;
}

std::string object(const std::string& rule, const std::string& attributes) {
    return "<Object LocalCustType='L' RemoteCustType='R'><MappingRule>" + rule + "</MappingRule>" +
           attributes + "</Object>";
}

class zvObjectMappingTest : public zvConfigurationTest {};

// An object that is alone looks its attributes up one by one, a group of alike objects by positions: what
// comes of both is the same.
TEST_F(zvObjectMappingTest, AnObjectIsMappedAloneAsInAGroup) {
    const std::string number = "<Attribute LocalName='n' RemoteName='rn' DataType='Integer'/>";
    const std::string flag = "<Attribute LocalName='f' RemoteName='rf' DataType='Boolean' DefaultValue='0'/>";
    const std::string localOnly = "<Attribute LocalName='l' DataType='String'/>";
    const std::string remoteOnly = "<Attribute RemoteName='r' DefaultValue='d'/>";
    const std::string crossed =
        "<Attribute LocalName='a' RemoteName='b'/><Attribute LocalName='b' RemoteName='a'/>";
    const std::string twice = "<Attribute LocalName='n' RemoteName='second'/>";
    struct {
        std::string attributes;
        const char* rule;
        Direction direction;
        zvObjectMapping::Values values;
        const char* outcome;
    } const cases[] = {
        {number, "{n} > '9'", Direction::localToRemote, {{"n", zvString("10")}}, "n>rn=10 |"},
        {number, "{rn} > '9'", Direction::localToRemote, {{"n", zvString("10")}}, "n>rn=10 |"},
        {number, "{n} > '9'", Direction::remoteToLocal, {{"rn", zvString("10")}}, "rn>n=10 |"},
        // By the other system's name no value is given.
        {number, "{n} > '9'", Direction::remoteToLocal, {{"n", zvString("10")}}, "-"},
        {number, "{n} > '10'", Direction::remoteToLocal, {{"n", zvString("9")}}, "| n"},
        {number + flag, "{f} = '1' OR NOT {f} = '1'", Direction::localToRemote, {}, "f>rf=0* |"},
        {number + flag,
         "NOT {f} = '1'",
         Direction::localToRemote,
         {{"n", zvString("1")}},
         "n>rn=1 f>rf=0* |"},
        {number + localOnly,
         "{l} = 'x'",
         Direction::localToRemote,
         {{"l", zvString("x")}, {"n", zvString("1")}},
         "n>rn=1 | l"},
        {number + remoteOnly,
         "{n} = '1'",
         Direction::localToRemote,
         {{"n", zvString("1")}},
         "n>rn=1 >r=d* |"},
        {number + remoteOnly, "{r} = 'x'", Direction::remoteToLocal, {{"r", zvString("x")}}, "| r"},
        {number,
         "{other} = 'x'",
         Direction::localToRemote,
         {{"n", zvString("1")}, {"other", zvString("x")}},
         "n>rn=1 | other"},
        {crossed,
         "{a} = '1' AND {b} = '1'",
         Direction::localToRemote,
         {{"a", zvString("1")}, {"b", zvString("2")}},
         "a>b=1 b>a=2 |"},
        {crossed, "{a} = '1'", Direction::localToRemote, {{"b", zvString("1")}}, "b>a=1 |"},
        {number + twice,
         "{second} = '1'",
         Direction::localToRemote,
         {{"n", zvString("1")}},
         "n>rn=1 n>second=1 |"},
    };
    for (const auto& one : cases) {
        const std::string mappedBy = object(one.rule, one.attributes);
        const std::string never = object("'a' = 'b'", one.attributes);
        ASSERT_TRUE(parseObjects(mappedBy).isOk());
        const std::string alone = mapped(one.direction, one.values);
        zvCfgConfigManager::destroyCfgConfigManager();
        ASSERT_TRUE(parseObjects(never + mappedBy).isOk());
        EXPECT_EQ(mapped(one.direction, one.values), alone) << mappedBy;
        EXPECT_EQ(alone, one.outcome) << mappedBy;
        zvCfgConfigManager::destroyCfgConfigManager();
    }
}

}  // namespace
