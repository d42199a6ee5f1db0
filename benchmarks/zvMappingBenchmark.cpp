#include <cstdlib>
#include <fstream>
#include <lua5.4/lua.hpp>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvObjectMapping.h"

// An object with 20 attributes is mapped by the last of 20 rules, each of which takes all its eight
// comparisons: the one that decides comes last, which is the first one written for the library and the last
// one for the others.
namespace {

constexpr int ruleCount = 20;
constexpr int attributeCount = 20;

std::string nameOf(int attribute) { return "a" + std::to_string(attribute); }
std::string targetOf(int attribute) { return "r" + std::to_string(attribute); }

// The texts of an event: by turns an integer, a float, a boolean and a text.
std::string textOf(int attribute) {
    if (attribute == attributeCount - 1) {
        return "rule " + std::to_string(ruleCount - 1);
    }
    const std::string number = std::to_string(attribute);
    return attribute % 4 == 0   ? number
           : attribute % 4 == 1 ? number + ".25"
           : attribute % 4 == 2 ? "1"
                                : "value " + number;
}

const zvCfgObjectList* readConfiguration() {
    static constexpr const char* types[] = {"Integer", "Float", "Boolean", "String"};
    std::string text = "<CustomizationConfig><ObjectConfig>";
    for (int rule = 0; rule < ruleCount; ++rule) {
        text += "<Object LocalCustType=\"Part\" RemoteCustType=\"Part" + std::to_string(rule) +
                "\"><MappingRule>";
        text += "{a19} = 'rule " + std::to_string(rule) +
                "' AND {a0} &lt;= '10' AND {a4} >= '4' AND {a8} &lt; '100' AND {a1} > '0.5' AND "
                "NOT {a5} > '7.5' AND {a2} = '1' AND {a7} = 'value 7'</MappingRule>";
        for (int i = 0; i < attributeCount; ++i) {
            text += "<Attribute LocalName=\"" + nameOf(i) + "\" RemoteName=\"" + targetOf(i) +
                    "\" DataType=\"" + types[i % 4] + "\"/>";
        }
        text += "</Object>";
    }
    text += "</ObjectConfig></CustomizationConfig>";
    const std::string file = zvBenchmarkFiles::path("mapping.xml");
    std::ofstream(file) << text;
    zvBenchmarkRequire(zvCfgMgrXmlParser().parse(file.c_str(), true).isOk(),
                       "The configuration was not loaded");
    return zvCfgConfigManager::getCfgConfigManager()->getObjectsByLocalType("Part");
}

using Texts = std::map<std::string, std::string>;
using Mapped = std::vector<std::pair<std::string, std::string>>;

Mapped carry(const Texts& values) {
    Mapped mapped;
    for (int i = 0; i < attributeCount; ++i) {
        static const std::vector<std::pair<std::string, std::string>> names = [] {
            std::vector<std::pair<std::string, std::string>> all;
            for (int k = 0; k < attributeCount; ++k) {
                all.emplace_back(nameOf(k), targetOf(k));
            }
            return all;
        }();
        const auto found = values.find(names[static_cast<std::size_t>(i)].first);
        if (found != values.end()) {
            mapped.emplace_back(names[static_cast<std::size_t>(i)].second, found->second);
        }
    }
    return mapped;
}

using Value = std::variant<int, float, bool, std::string>;

Value typed(int attribute, const std::string& text) {
    switch (attribute % 4) {
        case 0:
            return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
        case 1:
            return std::strtof(text.c_str(), nullptr);
        case 2:
            return text == "1";
        default:
            return text;
    }
}

bool holdsByHand(const std::map<std::string, Value, std::less<>>& all, const std::string& last) {
    return std::get<int>(all.find("a0")->second) <= 10 && std::get<int>(all.find("a4")->second) >= 4 &&
           std::get<int>(all.find("a8")->second) < 100 && std::get<float>(all.find("a1")->second) > 0.5F &&
           !(std::get<float>(all.find("a5")->second) > 7.5F) && std::get<bool>(all.find("a2")->second) &&
           std::get<std::string>(all.find("a7")->second) == "value 7" &&
           std::get<std::string>(all.find("a19")->second) == last;
}

std::size_t mapByHand(const Texts& values) {
    std::map<std::string, Value, std::less<>> all;
    int number = 0;
    for (const auto& [name, text] : values) {
        number = std::atoi(name.c_str() + 1);
        all.emplace(name, typed(number, text));
    }
    static const std::vector<std::string> constants = [] {
        std::vector<std::string> texts;
        for (int rule = 0; rule < ruleCount; ++rule) {
            texts.push_back("rule " + std::to_string(rule));
        }
        return texts;
    }();
    for (const std::string& constant : constants) {
        if (holdsByHand(all, constant)) {
            return carry(values).size();
        }
    }
    return 0;
}

class LuaRules {
public:
    LuaRules() {
        for (int rule = 0; rule < ruleCount; ++rule) {
            const std::string script =
                "return a0 <= 10 and a4 >= 4 and a8 < 100 and a1 > 0.5 and not (a5 > 7.5) and a2 == true and "
                "a7 == 'value 7' and a19 == 'rule " +
                std::to_string(rule) + "'";
            luaL_loadstring(m_lua.get(), script.c_str());
            m_chunks.push_back(luaL_ref(m_lua.get(), LUA_REGISTRYINDEX));
        }
    }

    std::size_t map(const Texts& values) {
        lua_State* const lua = m_lua.get();
        for (const auto& [name, text] : values) {
            push(std::atoi(name.c_str() + 1), text);
            lua_setglobal(lua, name.c_str());
        }
        for (const int chunk : m_chunks) {
            lua_rawgeti(lua, LUA_REGISTRYINDEX, chunk);
            lua_call(lua, 0, 1);
            const bool holds = lua_toboolean(lua, -1) != 0;
            lua_pop(lua, 1);
            if (holds) {
                return carry(values).size();
            }
        }
        return 0;
    }

private:
    void push(int attribute, const std::string& text) {
        lua_State* const lua = m_lua.get();
        switch (attribute % 4) {
            case 0:
                lua_pushinteger(lua, std::strtol(text.c_str(), nullptr, 10));
                break;
            case 1:
                lua_pushnumber(lua, std::strtod(text.c_str(), nullptr));
                break;
            case 2:
                lua_pushboolean(lua, text == "1" ? 1 : 0);
                break;
            default:
                lua_pushlstring(lua, text.data(), text.size());
        }
    }

    std::unique_ptr<lua_State, void (*)(lua_State*)> m_lua{luaL_newstate(), lua_close};
    std::vector<int> m_chunks;
};

}  // namespace

void zvMappingBenchmark() {
    const zvCfgObjectList* const candidates = readConfiguration();
    zvObjectMapping::Values values;
    Texts texts;
    for (int i = 0; i < attributeCount; ++i) {
        values.emplace(nameOf(i).c_str(), textOf(i).c_str());
        texts.emplace(nameOf(i), textOf(i));
    }
    const auto ours = [candidates, values] {
        zvObjectMapping mapping(zvObjectMapping::Direction::localToRemote, values);
        return mapping.map(candidates) ? mapping.attributes().size() : 0;
    };
    const auto lua = std::make_shared<LuaRules>();
    const auto byLua = [lua, texts] { return lua->map(texts); };
    const auto byHand = [texts] { return mapByHand(texts); };
    for (const std::size_t count : {ours(), byLua(), byHand()}) {
        zvBenchmarkRequire(count == attributeCount, "Somebody did not map every attribute");
    }
    zvBenchmarkRow("map an object of 20 attributes by 20 rules of 8 comparisons")
        .ours(ours)
        .peer("Lua, compiled chunks", "0.8", byLua)
        .peer("by hand, std::map and std::variant", "1.5", byHand);
}
