#include "zvBatchJsonLines.h"

#include <nlohmann/json.hpp>

#include "zvConsole.h"

using nlohmann::json;

namespace {

// Takes the arguments as they come, where a document in memory would have lost the first of two equal keys.
class ArgumentReader : public nlohmann::json_sax<json> {
public:
    explicit ArgumentReader(zvBatchEntry& entry) : m_entry(entry) {}

    bool null() override { return refuse("is null"); }
    bool boolean(bool value) override { return take(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override { return take(std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) override { return take(std::to_string(value)); }
    bool number_float(number_float_t, const string_t&) override {
        return refuse("is a number with a fraction or too large, which has to be written as a text");
    }
    bool string(string_t& value) override { return take(std::move(value)); }
    bool binary(binary_t&) override { return refuse("is binary"); }
    bool start_object(std::size_t) override {
        if (m_bInside) {
            return refuse("is an object");
        }
        m_bInside = true;
        return true;
    }
    bool key(string_t& key) override {
        m_strKey = key;
        return m_entry.find(key) == nullptr || refuse("is given twice");
    }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return refuse("is an array"); }
    bool end_array() override { return true; }
    bool parse_error(std::size_t position, const std::string&, const json::exception&) override {
        m_entry.fault = "it is no JSON object: character " + std::to_string(position);
        return false;
    }

private:
    bool take(std::string value) {
        if (!m_bInside) {
            return refuse("");
        }
        m_entry.arguments.emplace_back(m_strKey, std::move(value));
        return true;
    }
    bool refuse(const std::string& what) {
        m_entry.fault = m_bInside ? "the value of \"" + zvConsole::printableUtf8(m_strKey) + "\" " + what
                                  : "it is no JSON object";
        return false;
    }

    zvBatchEntry& m_entry;
    bool m_bInside = false;
    std::string m_strKey;
};

}  // namespace

bool zvBatchJsonLines::next(zvBatchEntry& entry) {
    bool isTooLong = false;
    do {
        if (!readLine(m_strLine, isTooLong)) {
            return false;
        }
    } while (!isTooLong && m_strLine.find_first_not_of(" \t") == std::string::npos);
    entry = {};
    entry.line = lineNumber();
    if (isTooLong) {
        entry.fault = "it is longer than " + std::to_string(longestEntry) + " bytes";
        return true;
    }
    ArgumentReader reader(entry);
    json::sax_parse(m_strLine, &reader);
    return true;
}
