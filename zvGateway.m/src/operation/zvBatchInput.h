#ifndef ZV_BATCH_INPUT_H
#define ZV_BATCH_INPUT_H

#include <istream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// One event of a batch's input. Texts are UTF-8.
struct zvBatchEntry {
    /// Of the line with which it begins, from 1.
    long line = 0;
    /// In their order; each key once.
    std::vector<std::pair<std::string, std::string>> arguments;
    /// Why the entry cannot be used; printable, and empty if it can.
    std::string fault;

    /// The argument's value; null if there is none.
    const std::string* find(const std::string& key) const;
};

/// Reads the input of a batch, an entry at a time.
class zvBatchInput {
public:
    enum class Format { unknown, jsonLines, tabSeparated, commaSeparated };
    /// No longer entry is read into memory.
    static constexpr std::size_t longestEntry = 1'000'000;

    /// Reads from the stream, which has to live as long; a format that is unknown is told by the first line.
    /// Throws the zvStepFailure of a header that cannot be used.
    static std::unique_ptr<zvBatchInput> open(std::istream& stream, Format format);
    virtual ~zvBatchInput() = default;

    /// Sets `entry`; false at the end. Throws the zvStepFailure of an input that cannot be read on.
    virtual bool next(zvBatchEntry& entry) = 0;
    /// How many bytes were read.
    std::size_t bytes() const { return m_bytes; }

protected:
    explicit zvBatchInput(std::istream& stream) : m_stream(stream) {}

    /// Sets `line` to the next line, without its end; false at the end of the input. What is longer than an
    /// entry may be is left out, with `isTooLong` set.
    bool readLine(std::string& line, bool& isTooLong);
    long lineNumber() const { return m_lineNumber; }

private:
    std::istream& m_stream;
    std::size_t m_bytes = 0;
    long m_lineNumber = 0;
};

#endif
