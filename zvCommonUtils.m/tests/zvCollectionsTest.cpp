#include <ctime>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "zvNameTable.h"
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

// Up, down and at random, with a change of the map now and then: the entry that was found last may have
// moved.
TEST(zvStringToStringMapTest, IndicesStayTrueInAnyOrderOfAccess) {
    zvStringToStringMap map;
    std::map<std::string, std::string> expected;
    std::minstd_rand random(7);
    for (int step = 0; step < 20'000; ++step) {
        const std::string key = std::to_string(random() % 500);
        if (step % 97 == 0) {
            map.setValue(key.c_str(), std::to_string(step).c_str());
            expected[key] = std::to_string(step);
        } else if (step % 89 == 0 && map.add(key.c_str(), "added")) {
            expected.emplace(key, "added");
        } else if (step % 7'001 == 0) {
            const zvStringToStringMap copy(map);
            map.clear();
            map.copy(copy);
        }
        const int size = map.size();
        const int index = step % 3 == 0   ? step % size
                          : step % 3 == 1 ? size - 1 - step % size
                                          : static_cast<int>(random() % 500) % size;
        const auto entry = std::next(expected.begin(), index);
        ASSERT_EQ(narrow(map.getKey(index)), entry->first) << step;
        ASSERT_EQ(narrow(map.getValue(index)), entry->second) << step;
    }
}

TEST(zvStringToStringMapTest, AHundredThousandEntriesAreWalkedByIndex) {
    constexpr int count = 100'000;
    zvStringToStringMap map;
    zvStringToAttrMap attributes;
    for (int i = 0; i < count; ++i) {
        const zvString key = std::to_string(count + i).c_str();
        map.add(key, key);
        attributes.addAttr(key, zvAttribute(key, zvValue(i)));
    }
    const std::clock_t start = std::clock();
    zvString name;
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(map.getKey(count - 1 - i), map.getValue(count - 1 - i));
        ASSERT_TRUE(attributes.getAttrName(i, name));
    }
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 2.0) << "it took minutes";
    EXPECT_EQ(name, std::to_string(count * 2 - 1).c_str());
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

// Names whose hashes are equal, and so more of them than there are slots for.
TEST(zvNameTableTest, FindsNamesThatCollide) {
    constexpr std::uint32_t hash = 5;
    std::vector<zvString> names;
    names.reserve(40);
    for (int i = 0; i < 40; ++i) {
        names.emplace_back(std::to_string(i).c_str());
    }
    zvNameTable<int> table;
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(table.find(viewOf(names[i]), hash), nullptr);
        EXPECT_TRUE(table.add(viewOf(names[i]), hash, static_cast<int>(i)));
    }
    int count = 0;
    table.forEach([&](zvStringView name, std::uint32_t, int value) {
        EXPECT_EQ(name, viewOf(names[static_cast<std::size_t>(value)]));
        ++count;
    });
    EXPECT_EQ(count, 40);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_FALSE(table.add(viewOf(names[i]), hash, -1));
        ASSERT_NE(table.find(viewOf(names[i]), hash), nullptr) << i;
        EXPECT_EQ(*table.find(viewOf(names[i]), hash), static_cast<int>(i));
    }
}

// Lengths on both sides of those that are compared and hashed in one step.
TEST(zvStringUnitsTest, TellsEveryUnitOfATextApart) {
    for (int length = 1; length < 20; ++length) {
        const zvString text(std::string(static_cast<std::size_t>(length), 'a').c_str());
        EXPECT_EQ(zvString(text), text);
        EXPECT_EQ(zvStringUnits::hashOf(zvString(text)), zvStringUnits::hashOf(text));
        for (int i = 0; i < length; ++i) {
            const zvString other = text.substr(0, i) + "b" + text.substr(i + 1, length);
            EXPECT_NE(other, text) << length << ", " << i;
            EXPECT_TRUE(text < other && !(other < text)) << length << ", " << i;
            EXPECT_NE(zvStringUnits::hashOf(other), zvStringUnits::hashOf(text)) << length << ", " << i;
        }
        EXPECT_TRUE(text < text + "a" && !(text + "a" < text) && text != text + "a");
    }
    EXPECT_EQ(zvString(), zvString(""));
    EXPECT_TRUE(zvString() < zvString("a") && !(zvString() < zvString()));
}

TEST(zvStringToStringMapTest, AnAssignedMapHasEntriesOfItsOwn) {
    zvStringToStringMap map;
    map.add("k", "1");
    zvStringToStringMap other;
    other.add("gone", "");
    other = map;
    const zvStringToStringMap& same = other;
    other = same;
    map.setValue("k", "2");
    map.add("l", "3");
    EXPECT_EQ(other.size(), 1);
    EXPECT_EQ(other.getValue("k"), "1");
    EXPECT_TRUE(other.getValue("gone").empty());
}

// A map finds its attributes by a table of pointers to them, which must not be the other map's.
TEST(zvStringToAttrMapTest, CopiesHaveAttributesOfTheirOwn) {
    zvStringToAttrMap assigned;
    assigned.addAttr("gone", zvAttribute("gone", zvValue(0)));
    zvString name;
    EXPECT_TRUE(assigned.getAttrName(0, name));
    std::unique_ptr<const zvStringToAttrMap> copy;
    {
        zvStringToAttrMap map;
        for (const char* const key : {"b", "a", ""}) {
            EXPECT_TRUE(map.addAttr(key, zvAttribute(key, zvValue(1))));
        }
        assigned = map;
        copy = std::make_unique<const zvStringToAttrMap>(map);
        EXPECT_NE(map.findAttr("a"), assigned.findAttr("a"));
        map.updateAttr("a", zvAttribute("a", zvValue(2)));
        map.updateAttr("c", zvAttribute("c", zvValue(2)));
    }
    const zvStringToAttrMap& same = assigned;
    assigned = same;
    EXPECT_EQ(assigned.findAttr("gone"), nullptr);
    EXPECT_FALSE(assigned.addAttr("b", zvAttribute("b", zvValue(3))));
    for (const zvStringToAttrMap* const map : {&std::as_const(assigned), copy.get()}) {
        EXPECT_EQ(map->size(), 3);
        ASSERT_NE(map->findAttr("a"), nullptr);
        EXPECT_EQ(map->findAttr("a")->value().getValue(), "1");
        EXPECT_EQ(map->findAttr("c"), nullptr);
        EXPECT_TRUE(map->getAttrName(0, name));
        EXPECT_EQ(name, "");
        EXPECT_TRUE(map->getAttrName(2, name));
        EXPECT_EQ(name, "b");
    }
    assigned.updateAttr("a", zvAttribute("a", zvValue(4)));
    EXPECT_EQ(assigned.findAttr("a")->value().getValue(), "4");
    EXPECT_EQ(copy->findAttr("a")->value().getValue(), "1");
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
