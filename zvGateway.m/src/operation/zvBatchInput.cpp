#include "zvBatchInput.h"

#include <algorithm>
#include <array>

#include "zvBatchJsonLines.h"
#include "zvBatchTable.h"
#include "zvFailure.h"

namespace {

// As some editors write it at the beginning of a file.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

}  // namespace

const std::string* zvBatchEntry::find(const std::string& key) const {
    const auto found = std::find_if(arguments.begin(), arguments.end(),
                                    [&key](const auto& argument) { return argument.first == key; });
    return found == arguments.end() ? nullptr : &found->second;
}

std::unique_ptr<zvBatchInput> zvBatchInput::open(std::istream& stream, Format format) {
    if (format == Format::unknown) {
        const int first = stream.peek();
        format = first == '{' ? Format::jsonLines : Format::tabSeparated;
    }
    if (format == Format::jsonLines) {
        return std::make_unique<zvBatchJsonLines>(stream);
    }
    return std::make_unique<zvBatchTable>(stream, format == Format::commaSeparated ? ',' : '\t');
}

bool zvBatchInput::readLine(std::string& line, bool& isTooLong) {
    constexpr std::size_t blockSize = 65536;
    static std::array<char, blockSize> block;
    line.clear();
    isTooLong = false;
    bool isWhole = false;
    while (!isWhole && m_stream.good()) {
        m_stream.getline(block.data(), blockSize);
        const auto count = static_cast<std::size_t>(m_stream.gcount());
        m_bytes += count;
        // A line without an end fills the block, or ends with the input.
        const bool hasEnd = !m_stream.eof() && !m_stream.fail();
        isWhole = hasEnd || m_stream.eof();
        if (m_stream.fail() && !m_stream.eof() && !m_stream.bad() && count == blockSize - 1) {
            m_stream.clear();
        }
        isTooLong = isTooLong || line.size() + count > longestEntry;
        if (!isTooLong) {
            line.append(block.data(), hasEnd ? count - 1 : count);
        }
    }
    if (m_stream.bad()) {
        throw zvStepFailure{"line " + std::to_string(m_lineNumber + 1), "it cannot be read"};
    }
    if (line.empty() && !isTooLong && !m_stream.good()) {
        return false;
    }
    ++m_lineNumber;
    if (m_lineNumber == 1 && line.compare(0, byteOrderMark.size(), byteOrderMark) == 0) {
        line.erase(0, byteOrderMark.size());
    }
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    return true;
}
