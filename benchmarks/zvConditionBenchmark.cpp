#include <duktape.h>

#include <algorithm>
#include <cstdlib>
#include <lua5.4/lua.hpp>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "zvBenchmark.h"
#include "zvBenchmarkSubjects.h"
#include "zvCndContext.h"
#include "zvCndParsingUtils.h"

namespace {

constexpr int attributeCount = 20;

// True, but no short circuit: all eight comparisons have to be evaluated.
constexpr char textRule[] =
    "{a1} = 'value 1' AND {a3} = 'value 3' AND ({a5} = 'value 5') AND {a7} != 'value 8' AND "
    "NOT {a9} = 'no' AND {a11} = 'value 11' AND ({a13} = 'none' OR {a15} = 'value 15')";
constexpr char textScript[] =
    "return a1 == 'value 1' and a3 == 'value 3' and (a5 == 'value 5') and a7 ~= 'value 8' and "
    "not (a9 == 'no') and a11 == 'value 11' and (a13 == 'none' or a15 == 'value 15')";
constexpr char textECMAScript[] =
    "a1 == 'value 1' && a3 == 'value 3' && (a5 == 'value 5') && a7 != 'value 8' && "
    "!(a9 == 'no') && a11 == 'value 11' && (a13 == 'none' || a15 == 'value 15')";

// Attribute i is an integer, a float, a boolean or a string.
constexpr char typedRule[] =
    "{a0} <= '10' AND {a4} >= '4' AND ({a8} < '100') AND {a1} > '0.5' AND "
    "NOT {a5} > '7.25' AND {a2} = '1' AND ({a3} = 'none' OR {a7} = 'value 7')";
constexpr char typedScript[] =
    "return a0 <= 10 and a4 >= 4 and (a8 < 100) and a1 > 0.5 and "
    "not (a5 > 7.25) and a2 == true and (a3 == 'none' or a7 == 'value 7')";

using Value = std::variant<int, float, bool, std::u16string>;
using Attributes = std::map<std::u16string, Value, std::less<>>;
using HashedAttributes = std::unordered_map<std::u16string_view, Value>;

struct Context {
    zvCndContext ours;
    Attributes byHand;
    HashedAttributes hashed;  // borrows the names in `byHand`
    std::unique_ptr<lua_State, void (*)(lua_State*)> lua{luaL_newstate(), lua_close};

    void add(int number, const zvValue& value, const Value& sameByHand) {
        const std::string name = "a" + std::to_string(number);
        zvAttribute attribute(name.c_str(), value);
        ours.addAttribute(attribute);
        const auto added = byHand.emplace(std::u16string(name.begin(), name.end()), sameByHand).first;
        hashed.emplace(added->first, sameByHand);
        lua_setglobal(lua.get(), name.c_str());
    }
    void add(int number, int value) {
        lua_pushinteger(lua.get(), value);
        add(number, zvValue(value), value);
    }
    void add(int number, float value) {
        lua_pushnumber(lua.get(), value);
        add(number, zvValue(value), value);
    }
    void add(int number, bool value) {
        lua_pushboolean(lua.get(), value ? 1 : 0);
        add(number, zvValue(value), value);
    }
    void add(int number, const std::string& value) {
        lua_pushstring(lua.get(), value.c_str());
        add(number, zvValue(zvString(value.c_str())), std::u16string(value.begin(), value.end()));
    }
};

using ContextPtr = std::shared_ptr<Context>;

ContextPtr texts() {
    auto context = std::make_shared<Context>();
    for (int i = 0; i < attributeCount; ++i) {
        context->add(i, "value " + std::to_string(i));
    }
    return context;
}

ContextPtr typed() {
    auto context = std::make_shared<Context>();
    for (int i = 0; i < attributeCount; i += 4) {
        context->add(i, i);
        context->add(i + 1, static_cast<float>(i) + 1.25F);
        context->add(i + 2, true);
        context->add(i + 3, "value " + std::to_string(i + 3));
    }
    return context;
}

template <class Type, class Map>
const Type& get(const Map& attributes, std::u16string_view name) {
    return std::get<Type>(attributes.find(name)->second);
}

template <class Map>
bool textRuleByHand(const Map& all) {
    const auto is = [&all](std::u16string_view name, std::u16string_view value) {
        return get<std::u16string>(all, name) == value;
    };
    return is(u"a1", u"value 1") && is(u"a3", u"value 3") && is(u"a5", u"value 5") &&
           !is(u"a7", u"value 8") && !is(u"a9", u"no") && is(u"a11", u"value 11") &&
           (is(u"a13", u"none") || is(u"a15", u"value 15"));
}

template <class Map>
bool typedRuleByHand(const Map& all) {
    return get<int>(all, u"a0") <= 10 && get<int>(all, u"a4") >= 4 && get<int>(all, u"a8") < 100 &&
           get<float>(all, u"a1") > 0.5F && get<float>(all, u"a5") <= 7.25F && get<bool>(all, u"a2") &&
           (get<std::u16string>(all, u"a3") == u"none" || get<std::u16string>(all, u"a7") == u"value 7");
}

void parse() {
    const std::shared_ptr<lua_State> lua(luaL_newstate(), lua_close);
    const std::shared_ptr<duk_context> duktape(duk_create_heap_default(), duk_destroy_heap);
    zvBenchmarkRow("parse a condition of 8 comparisons")
        .ours([rule = zvString(textRule)] {
            return zvCndParsingUtils::createConditionStructure(rule)->getConditionType();
        })
        .peer("Lua, luaL_loadstring", "0.5",
              [lua] {
                  const int status = luaL_loadstring(lua.get(), textScript);
                  lua_pop(lua.get(), 1);
                  return status;
              })
        .peer("Duktape, compile", "0.5", [duktape] {
            duk_compile_string(duktape.get(), DUK_COMPILE_EVAL, textECMAScript);
            duk_pop(duktape.get());
            return 0;
        });
}

// Only the lookups of a rule's eight comparisons.
int lookUp(const zvCndContext& context) {
    static const std::vector<zvString> names = {"a1", "a3", "a5", "a7", "a9", "a11", "a13", "a15"};
    return static_cast<int>(std::count_if(names.begin(), names.end(), [&context](const zvString& name) {
        return context.findValue(name) != nullptr;
    }));
}

bool run(lua_State* lua, int chunk) {
    lua_rawgeti(lua, LUA_REGISTRYINDEX, chunk);
    lua_call(lua, 0, 1);
    const bool answer = lua_toboolean(lua, -1) != 0;
    lua_pop(lua, 1);
    return answer;
}

void evaluate(const std::string& what, const ContextPtr& context, const char* rule, const char* script,
              bool (*byHand)(const Attributes&), bool (*byHandHashed)(const HashedAttributes&),
              const std::string& wanted) {
    lua_State* const lua = context->lua.get();
    luaL_loadstring(lua, script);
    const int chunk = luaL_ref(lua, LUA_REGISTRYINDEX);
    const zvCndCondition condition = zvCndParsingUtils::createConditionStructure(rule);
    const auto ours = [condition, context] { return condition->evaluate(context->ours); };
    const auto hand = [byHand, context] { return byHand(context->byHand); };
    const auto hashed = [byHandHashed, context] { return byHandHashed(context->hashed); };
    const auto compiled = [context, chunk] { return run(context->lua.get(), chunk); };
    zvBenchmarkRequire(ours() && hand() && hashed() && compiled(), "The rules' answers differ");
    zvBenchmarkRow("evaluate it over 20 attributes, " + what)
        .ours(ours)
        .peer("by hand, std::map and std::variant", "2.0", hand)
        .peer("Lua, compiled chunk", "0.5", compiled)
        .peer("by hand, std::unordered_map and std::variant", wanted, hashed)
        .alongside("its eight look-ups alone", [context] { return lookUp(context->ours); });
}

// The attributes of the typed rule as an event brings them, and what each side makes of them.
struct TextAttribute {
    zvDataTypeEnum type;
    std::string name;
    std::string text;
    zvString ourName;
    zvString ourText;
};

std::vector<TextAttribute> textAttributes() {
    std::vector<TextAttribute> all;
    for (int i = 0; i < attributeCount; i += 4) {
        const std::string number = std::to_string(i);
        for (const auto& [type, text] :
             {std::pair(zvDataTypeInteger, number), std::pair(zvDataTypeFloat, std::to_string(i + 1) + ".25"),
              std::pair(zvDataTypeBoolean, std::string("1")),
              std::pair(zvDataTypeString, "value " + std::to_string(i + 3))}) {
            const std::string name = "a" + std::to_string(all.size());
            all.push_back({type, name, text, name.c_str(), text.c_str()});
        }
    }
    return all;
}

void setInLua(lua_State* lua, const TextAttribute& attribute) {
    switch (attribute.type) {
        case zvDataTypeInteger:
            lua_pushinteger(lua, std::strtol(attribute.text.c_str(), nullptr, 10));
            break;
        case zvDataTypeFloat:
            lua_pushnumber(lua, std::strtod(attribute.text.c_str(), nullptr));
            break;
        case zvDataTypeBoolean:
            lua_pushboolean(lua, attribute.text == "1" ? 1 : 0);
            break;
        default:
            lua_pushlstring(lua, attribute.text.data(), attribute.text.size());
    }
    lua_setglobal(lua, attribute.name.c_str());
}

// As for each event of a batch: both sides keep their context, and set all its attributes anew.
void setAndEvaluate() {
    const zvCndCondition condition = zvCndParsingUtils::createConditionStructure(typedRule);
    const auto ours = [condition, context = zvCndContext(), all = textAttributes()]() mutable {
        for (const TextAttribute& attribute : all) {
            context.setAttribute(attribute.ourName, attribute.ourText, attribute.type);
        }
        return condition->evaluate(context);
    };
    const std::shared_ptr<lua_State> lua(luaL_newstate(), lua_close);
    luaL_loadstring(lua.get(), typedScript);
    const auto byLua = [lua, chunk = luaL_ref(lua.get(), LUA_REGISTRYINDEX), all = textAttributes()] {
        for (const TextAttribute& attribute : all) {
            setInLua(lua.get(), attribute);
        }
        return run(lua.get(), chunk);
    };
    auto once = ours;
    zvBenchmarkRequire(once() && byLua(), "The rules' answers differ");
    zvBenchmarkRow("set 20 attributes from texts, typed, and evaluate it")
        .ours(ours)
        .peer("Lua, globals and a compiled chunk", "0.6", byLua);
}

}  // namespace

void zvConditionBenchmark() {
    parse();
    evaluate("texts", texts(), textRule, textScript, textRuleByHand, textRuleByHand, "0.7");
    evaluate("typed", typed(), typedRule, typedScript, typedRuleByHand, typedRuleByHand, "1.2");
    setAndEvaluate();
}
