// The strong exception guarantee of collections and values: std::bad_alloc propagates and leaves them
// unchanged.
#include <string>
#include <vector>

#include "zvFaultyMemory.h"
#include "zvStringList.h"
#include "zvStringToAttrMap.h"
#include "zvStringToStringMap.h"
#include "zvStringTokeniser.h"
#include "zvTestSupport.h"

namespace {

using Contents = std::vector<std::string>;

// Constructed in advance, so that only allocations of the operation under test fail.
const zvString first("the first text");
const zvString second("a second text");
const zvString third("yet another text");

Contents contents(const zvStringList& list) {
    Contents all;
    for (int i = 0; i < list.numStrings(); ++i) {
        all.push_back(narrow(list.getString(i)));
    }
    return all;
}

Contents contents(const zvStringToStringMap& map) {
    Contents all;
    map.forEach([&all](const zvString& key, const zvString& value) {
        all.push_back(narrow(key) + "=" + narrow(value));
    });
    return all;
}

Contents contents(const zvStringToAttrMap& map) {
    Contents all;
    for (int i = 0; i < map.size(); ++i) {
        zvString key;
        zvAttribute attribute;
        map.getAttrName(i, key);
        map.getAttr(i, attribute);
        all.push_back(narrow(key) + "=" + narrow(attribute.getName()) + ":" +
                      narrow(attribute.value().getValue()));
    }
    return all;
}

Contents contents(const zvValue& value) {
    return {std::to_string(value.getDataType()), narrow(value.getValue())};
}

Contents contents(const zvAttribute& attribute) {
    return {narrow(attribute.getName()), narrow(attribute.value().getValue())};
}

zvStringList listOfOne() {
    zvStringList list;
    list.addString(first);
    return list;
}

zvStringToStringMap mapOfOne() {
    zvStringToStringMap map;
    map.add(first, second);
    return map;
}

zvStringToAttrMap attributesOfOne() {
    zvStringToAttrMap map;
    map.addAttr(first, zvAttribute(first, zvValue(second)));
    return map;
}

zvAttribute number() { return {first, zvValue(12)}; }

// Checks the strong exception guarantee: a failed operation leaves the object unchanged.
template <typename Object>
void wholeOrNotAtAll(Object (*make)(), void (*operation)(Object&)) {
    const Contents before = contents(make());
    Object done = make();
    operation(done);
    const Contents after = contents(done);
    zvFaultyMemory::forEveryFault(make, operation, [&](const Object& object, bool faultless) {
        const Contents now = contents(object);
        EXPECT_TRUE(now == after || (!faultless && now == before)) << testing::PrintToString(now);
    });
}

TEST(zvCollectionFaultTest, AListIsUnchanged) {
    wholeOrNotAtAll<zvStringList>(listOfOne, [](zvStringList& list) { list.addString(second); });
    wholeOrNotAtAll<zvStringList>(listOfOne, [](zvStringList& list) { list = zvStringList(list); });
    wholeOrNotAtAll<zvStringList>(listOfOne, [](zvStringList& list) {
        zvStringList other;
        other.addString(second);
        other.addString(third);
        list = other;
    });
}

TEST(zvCollectionFaultTest, AMapIsUnchanged) {
    wholeOrNotAtAll<zvStringToStringMap>(mapOfOne, [](zvStringToStringMap& map) { map.add(third, second); });
    wholeOrNotAtAll<zvStringToStringMap>(mapOfOne, [](zvStringToStringMap& map) { map.add(first, third); });
    wholeOrNotAtAll<zvStringToStringMap>(mapOfOne,
                                         [](zvStringToStringMap& map) { map.setValue(first, third); });
    wholeOrNotAtAll<zvStringToStringMap>(mapOfOne,
                                         [](zvStringToStringMap& map) { map.setValue(third, second); });
    wholeOrNotAtAll<zvStringToStringMap>(mapOfOne, [](zvStringToStringMap& map) {
        zvStringToStringMap other(map);
        other.add(third, second);
        map.copy(other);
    });
    wholeOrNotAtAll<zvStringToAttrMap>(attributesOfOne, [](zvStringToAttrMap& map) {
        map.addAttr(second, zvAttribute(second, zvValue(third)));
    });
    wholeOrNotAtAll<zvStringToAttrMap>(attributesOfOne, [](zvStringToAttrMap& map) {
        map.updateAttr(first, zvAttribute(third, zvValue(third)));
    });
    wholeOrNotAtAll<zvStringToAttrMap>(attributesOfOne, [](zvStringToAttrMap& map) {
        zvStringToAttrMap other(map);
        other.addAttr(third, zvAttribute(third, zvValue(second)));
        map = other;
    });
}

TEST(zvCollectionFaultTest, AValueIsUnchangedOrEmpty) {
    wholeOrNotAtAll<zvAttribute>(
        number, [](zvAttribute& attribute) { attribute = zvAttribute(second, zvValue(third)); });
    wholeOrNotAtAll<zvAttribute>(number, [](zvAttribute& attribute) { attribute.setValue(zvValue(third)); });
    wholeOrNotAtAll<zvAttribute>(number, [](zvAttribute& attribute) { attribute.setName(third); });
    wholeOrNotAtAll<zvValue>([] { return zvValue(12); }, [](zvValue& value) { value.setStrValue(third); });
    zvFaultyMemory::forEveryFault([] { return zvValue(12); },
                                  [](zvValue& value) { value.setValue(third, zvDataTypeString, 3); },
                                  [](const zvValue& value, bool faultless) {
                                      EXPECT_EQ(narrow(value.getValue()), faultless ? narrow(third) : "");
                                  });
}

TEST(zvCollectionFaultTest, ATokeniserHasOnlyCompleteTokens) {
    zvFaultyMemory::forEveryFault(
        [] { return zvStringList(); },
        [](zvStringList& tokens) {
            zvStringTokeniser tokeniser(first, " ", true);
            tokeniser.tokenise();
            for (int i = 0; i < tokeniser.getNumTokens(); ++i) {
                tokens.addString(tokeniser.getToken(i));
            }
        },
        [](const zvStringList& tokens, bool faultless) {
            const Contents whole = {"the", "first", "text"};
            for (int i = 0; i < tokens.numStrings(); ++i) {
                EXPECT_TRUE(tokens.getString(i).empty() ||
                            narrow(tokens.getString(i)) == whole[static_cast<std::size_t>(i)]);
            }
            EXPECT_TRUE(!faultless || contents(tokens) == whole);
        });
}

}  // namespace
