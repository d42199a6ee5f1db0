#include "zvAttribute.h"
#include "zvCheck.h"
#include "zvCoreObjectCfg.h"
#include "zvCoreObjectCommon.h"
#include "zvReferenceCtr.h"
#include "zvStringList.h"
#include "zvStringToAttrMap.h"
#include "zvStringToStringMap.h"
#include "zvStringTokeniser.h"
#include "zvTemplateMap.h"

namespace {

class Counted : public zvReferenceCtr {
public:
    Counted() { ++living; }
    Counted(const Counted& other) : zvReferenceCtr(other) { ++living; }
    Counted& operator=(const Counted&) = default;
    ~Counted() override { --living; }

    static inline int living = 0;
};

void lists() {
    zvStringList list;
    list.addString("text");
    list.addString(u"text");
    list.addString('x');
    list.addString(5);
    list.addString(true);
    const zvStringList copy(list);
    ZV_CHECK(copy.numStrings() == 5 && list.getString(2) == 'x' && list.getStringIndex(5) == 3);
    ZV_CHECK(list.back() == true && !list.empty());
    list.pop();
    list.clear();
    zvCoreObjectCommon common;
    zvCoreObjectCfg configuration;
    const zvCoreObject* objects[] = {&list, &common, &configuration};
    use(objects);
}

void maps() {
    zvStringToStringMap map, other;
    ZV_CHECK(map.add("n", 5) && !map.add("n", 6) && map.add('c', 'd') && map.getValue("n") == 5);
    map.setValue("n", 2.5);
    map.setValue("yes", true);
    ZV_CHECK(map.getKey(0) == 'c' && map.getValue(0) == 'd' && map.size() == 3);
    other.copy(map);
    map.clear();
    zvStringToAttrMap attributes;
    zvAttribute found;
    zvString name;
    ZV_CHECK(attributes.addAttr("n", zvAttribute("n", 5)) && !attributes.addAttr("n", found));
    attributes.updateAttr("n", zvAttribute("n", "text"));
    attributes.updateAttr(1, zvAttribute());
    ZV_CHECK(attributes.getAttr("n", found) && attributes.getAttr(0, found) &&
             attributes.getAttrName(1, name));
    ZV_CHECK(name == "n" && attributes.size() == 2);
    zvTemplateMap<zvString, int> counts;
    int count = 0;
    ZV_CHECK(counts.insert("n", 1) && counts.find("n", count) && count == 1);
}

void attributes() {
    zvAttribute attribute("n", zvString("v")), number("n", 7), text('n', u"v"), copy;
    attribute.setValue(7);
    ZV_CHECK(attribute.getValue().getDataType() == zvDataTypeInteger);
    attribute.setValue("7");
    attribute.setValue(2.5F);
    attribute.setValue(true);
    attribute.setValue(zvDateTime(2011, 5, 21, 11, 12, 22));
    attribute.setValue(zvString("v"));
    attribute.setName('m');
    copy.copy(attribute);
    copy = number;
    copy.copy(text);
    ZV_CHECK(attribute.getName() == 'm' && copy.getName() == 'n' && copy.getValue() == "v");
}

void counters() {
    auto* const original = new Counted;
    ZV_CHECK(original->AddRef() == 1 && original->AddRef() == 2);
    auto* const copy = new Counted(*original);
    ZV_CHECK(copy->AddRef() == 1);
    *copy = *original;
    ZV_CHECK(original->Release() == 1 && copy->Release() == 0 && original->Release() == 0 &&
             Counted::living == 0);
    zvReferenceCtr plain, plainCopy(plain);
    plainCopy = plain;
}

void tokenisers() {
    zvStringTokeniser characters("a,b", ','), any("a;b,c", ",;", false), whole(u"a::b", "::", true);
    zvStringTokeniser digits(10203, '0');
    zvStringTokeniser* const all[] = {&characters, &any, &whole, &digits};
    int tokens = 0;
    for (zvStringTokeniser* const tokeniser : all) {
        tokeniser->tokenise();
        tokens += tokeniser->getNumTokens();
    }
    ZV_CHECK(tokens == 10 && digits.getToken(2) == 3);
}

}  // namespace

int main() {
    lists();
    maps();
    attributes();
    counters();
    tokenisers();
    return failures;
}
