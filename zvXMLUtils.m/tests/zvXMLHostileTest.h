#ifndef ZV_XML_HOSTILE_TEST_H
#define ZV_XML_HOSTILE_TEST_H

#include <chrono>
#include <string>

#include "zvXMLTestSupport.h"

inline std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

inline std::string numbered(const std::string& before, const std::string& after, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all.append(before).append(std::to_string(i)).append(after);
    }
    return all;
}

inline std::string document(const std::string& declarations, const std::string& content) {
    return "<!DOCTYPE r [<!ELEMENT r ANY><!ATTLIST r a CDATA #IMPLIED>" + declarations + "]>" + content;
}

constexpr std::chrono::seconds bearable(20);  // generous, for sanitizers on a busy machine

/// Loads documents that are made to take long, or much, or what is not theirs.
class zvXMLHostileTest : public zvLoggedTest {
protected:
    // Loads the document; returns the start of the only error in the log or, on success, its text.
    static std::string outcome(const std::string& source, bool isFile = false,
                               const zvXMLOptions& options = {}) {
        zvRecordingLogger::reset();
        zvXMLParser parser(nullptr, options);
        const auto start = std::chrono::steady_clock::now();
        const bool loaded = parser.loadXMLFromString(source.c_str(), isFile);
        EXPECT_LT(std::chrono::steady_clock::now() - start, bearable);
        EXPECT_EQ(loaded, parser.getCurrentNode() != nullptr);
        if (loaded) {
            zvString text;
            parser.getMemberValue(text);
            return "loaded " + narrow(text);
        }
        const Lines errors = zvRecordingLogger::lines("error");
        return errors.size() == 1 ? errors[0] : std::to_string(errors.size()) + " errors";
    }
};

#endif
