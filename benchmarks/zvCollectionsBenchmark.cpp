#include <Poco/AutoPtr.h>
#include <Poco/StringTokenizer.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <random>
#include <vector>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvProperties.h"
#include "zvStringToStringMap.h"
#include "zvStringTokeniser.h"

namespace {

constexpr int count = 10'000;

void tokenise() {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "token" + std::to_string(i) + ',';
    }
    zvBenchmarkRow("tokenise 10,000 tokens")
        .ours([text = zvString(text.c_str())] {
            zvStringTokeniser tokeniser(text, ',');
            tokeniser.tokenise();
            return tokeniser.getNumTokens();
        })
        .peer("POCO StringTokenizer", "1.0", [text] { return Poco::StringTokenizer(text, ",").count(); });
}

template <class Text>
struct Entry {
    Text key;
    Text value;
};

// The same entries for all peers, in the same shuffled order.
template <class Text, class Make>
std::vector<Entry<Text>> entries(Make make) {
    std::vector<Entry<Text>> all;
    for (int i = 0; i < count; ++i) {
        all.push_back({make("attribute.name." + std::to_string(i)), make("value " + std::to_string(i))});
    }
    std::shuffle(all.begin(), all.end(), std::mt19937(1));
    return all;
}

using StandardMap = std::map<std::u16string, std::u16string>;

zvStringToStringMap filled(const std::vector<Entry<zvString>>& entries) {
    zvStringToStringMap map;
    for (const auto& entry : entries) {
        map.add(entry.key, entry.value);
    }
    return map;
}

StandardMap filled(const std::vector<Entry<std::u16string>>& entries) {
    StandardMap map;
    for (const auto& entry : entries) {
        map.emplace(entry.key, entry.value);
    }
    return map;
}

void maps() {
    const auto ours = entries<zvString>([](const std::string& text) { return zvString(text.c_str()); });
    const auto standard = entries<std::u16string>(
        [](const std::string& text) { return std::u16string(text.begin(), text.end()); });
    zvBenchmarkRow("map: add 10,000 entries")
        .ours([ours] { return filled(ours).size(); })
        .peer("std::map", "1.2", [standard] { return filled(standard).size(); });
    zvBenchmarkRow("map: look up 10,000 entries")
        .ours([ours, map = filled(ours)] {
            int length = 0;
            for (const auto& entry : ours) {
                length += map.getValue(entry.key).size();
            }
            return length;
        })
        .peer("std::map", "1.2", [standard, map = filled(standard)] {
            std::size_t length = 0;
            for (const auto& entry : standard) {
                const std::u16string value = map.find(entry.key)->second;
                length += value.size();
            }
            return length;
        });
}

void properties() {
    const std::string path = zvBenchmarkFiles::path("some.properties");
    std::ofstream out(path);
    for (int i = 0; i < count; ++i) {
        out << "property.name." << i << "=the value of property " << i << '\n';
    }
    out.close();
    zvBenchmarkRow("properties file of 10,000 lines")
        .ours([path = zvString(path.c_str())] {
            zvProperties properties;
            properties.parse(path);
            return properties.getPropertyValue("property.name.9999").size();
        })
        .peer("POCO PropertyFileConfiguration", "0.7", [path] {
            const Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> properties(
                new Poco::Util::PropertyFileConfiguration(path));
            return properties->getString("property.name.9999").size();
        });
}

}  // namespace

void zvCollectionsBenchmark() {
    tokenise();
    maps();
    properties();
}
