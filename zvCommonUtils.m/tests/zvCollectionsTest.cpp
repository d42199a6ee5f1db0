#include <string>

#include "zvReferenceCtr.h"
#include "zvStringList.h"
#include "zvStringToAttrMap.h"
#include "zvStringToStringMap.h"
#include "zvTemplateMap.h"
#include "zvTestSupport.h"

namespace {

TEST(zvStringListTest, KeepsOrderAndDuplicates) {
    zvStringList list;
    EXPECT_TRUE(list.empty() && list.back().empty());
    list.pop();
    for (const char* const text : {"b", "a", "b"}) {
        list.addString(text);
    }
    EXPECT_EQ(list.numStrings(), 3);
    EXPECT_EQ(list.getStringIndex("b"), 0);
    EXPECT_EQ(list.getStringIndex("B"), -1);
    EXPECT_TRUE(list.getString(-1).empty() && list.getString(3).empty());
    zvStringList copy(list);
    list.pop();
    EXPECT_EQ(list.back(), "a");
    EXPECT_EQ(copy.back(), "b");
    list = copy;
    EXPECT_EQ(list.numStrings(), 3);
    list.clear();
    EXPECT_TRUE(list.empty());
}

TEST(zvStringToStringMapTest, FirstValueWinsUnlessItIsSet) {
    zvStringToStringMap map;
    EXPECT_TRUE(map.add("k", "1"));
    EXPECT_FALSE(map.add("k", "2"));
    EXPECT_EQ(map.getValue("k"), "1");
    map.setValue("k", "2");
    EXPECT_EQ(map.getValue("k"), "2");
    EXPECT_EQ(map.size(), 1);
}

TEST(zvStringToStringMapTest, IndicesFollowTheKeys) {
    zvStringToStringMap map;
    map.add("a", "lower");
    map.add("B", "upper");
    map.add("", "none");
    EXPECT_EQ(map.getKey(1), "B");
    EXPECT_EQ(map.getValue(2), "lower");
    EXPECT_TRUE(map.getKey(-1).empty() && map.getKey(3).empty() && map.getValue(3).empty());
    zvStringToStringMap copy;
    copy.add("gone", "");
    copy.copy(map);
    map.clear();
    zvString walked;
    copy.forEach(
        [&walked](const zvString& key, const zvString& value) { walked += key + "=" + value + ";"; });
    EXPECT_EQ(walked, "=none;B=upper;a=lower;");
}

TEST(zvStringToAttrMapTest, HoldsAttributesByName) {
    zvStringToAttrMap map;
    zvAttribute out("untouched", zvValue(1));
    EXPECT_FALSE(map.getAttr("k", out) || map.getAttr(0, out));
    EXPECT_EQ(out.getName(), "untouched");
    EXPECT_TRUE(map.addAttr("k", zvAttribute("name", zvValue(2))));
    EXPECT_FALSE(map.addAttr("k", zvAttribute("other", zvValue(3))));
    EXPECT_TRUE(map.getAttr("k", out));
    EXPECT_EQ(out.getName(), "name");
    zvStringToAttrMap copy(map);
    map.updateAttr("k", zvAttribute("other", zvValue(3)));
    EXPECT_TRUE(map.getAttr(0, out));
    EXPECT_EQ(out.getValue().getIntValue(), 3);
    EXPECT_EQ(copy.findAttr("k")->getName(), "name");
    EXPECT_EQ(copy.findAttr("K"), nullptr);
    zvString name;
    EXPECT_TRUE(map.getAttrName(0, name));
    EXPECT_EQ(name, "k");
    EXPECT_FALSE(map.getAttrName(1, name) || map.getAttrName(-1, name));
}

// Enough entries for hash collisions, in the map and in its copy.
TEST(zvStringToAttrMapTest, FindsManyKeysAndNoOthers) {
    constexpr int count = 1000;
    const auto key = [](int i) { return zvString(("attribute " + std::to_string(i)).c_str()); };
    zvStringToAttrMap map;
    for (int i = 0; i < count; ++i) {
        ASSERT_TRUE(map.addAttr(key(i), zvAttribute(key(i), zvValue(i))));
    }
    const zvStringToAttrMap copy(map);
    for (int i = 0; i < count; ++i) {
        EXPECT_FALSE(map.addAttr(key(i), zvAttribute(key(i), zvValue(-1)))) << i;
        map.updateAttr(key(i), zvAttribute(key(i), zvValue(i + count)));
    }
    EXPECT_EQ(map.size(), count);
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(map.findAttr(key(i))->value().getIntValue(), i + count);
        EXPECT_EQ(copy.findAttr(key(i))->value().getIntValue(), i);
        EXPECT_EQ(map.findAttr(key(i + count)), nullptr);
    }
}

TEST(zvTemplateMapTest, FirstValueWins) {
    zvTemplateMap<zvString, int> map;
    int out = 7;
    EXPECT_FALSE(map.find("k", out));
    EXPECT_TRUE(map.insert("k", 1));
    EXPECT_FALSE(map.insert("k", 2));
    EXPECT_TRUE(map.find("k", out));
    EXPECT_EQ(out, 1);
    EXPECT_EQ(map.size(), 1);
}

class Counted : public zvReferenceCtr {
public:
    explicit Counted(bool& gone) : m_bGone(gone) {}
    Counted(const Counted& other, bool& gone) : zvReferenceCtr(other), m_bGone(gone) {}
    ~Counted() override { m_bGone = true; }

private:
    bool& m_bGone;
};

TEST(zvReferenceCtrTest, TheLastReleaseDeletes) {
    bool gone = false;
    auto* const owned = new Counted(gone);
    EXPECT_EQ(owned->AddRef(), 1);
    EXPECT_EQ(owned->AddRef(), 2);
    EXPECT_EQ(owned->Release(), 1);
    EXPECT_FALSE(gone);
    EXPECT_EQ(owned->Release(), 0);
    EXPECT_TRUE(gone);
    bool unownedGone = false;
    EXPECT_EQ((new Counted(unownedGone))->Release(), 0);
    EXPECT_TRUE(unownedGone);
}

TEST(zvReferenceCtrTest, ACopyHasNoOwnersYet) {
    bool gone = false;
    auto* const original = new Counted(gone);
    original->AddRef();
    original->AddRef();
    bool copyGone = false;
    auto* const copy = new Counted(*original, copyGone);
    EXPECT_EQ(copy->AddRef(), 1);
    const zvReferenceCtr& assigned = *original;
    static_cast<zvReferenceCtr&>(*copy) = assigned;
    EXPECT_EQ(copy->Release(), 0);
    EXPECT_TRUE(copyGone && !gone);
    EXPECT_EQ(original->Release(), 1);
    original->Release();
}

}  // namespace
