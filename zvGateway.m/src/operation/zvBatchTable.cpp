#include "zvBatchTable.h"

#include <algorithm>
#include <new>

#include "zvConsole.h"
#include "zvFailure.h"

zvBatchTable::zvBatchTable(std::istream& stream, char separator) : zvBatchInput(stream) {
    if (csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI) != 0) {
        throw std::bad_alloc();
    }
    csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
    csv_set_space_func(&m_parser, [](unsigned char) { return 0; });
    csv_set_term_func(&m_parser, [](unsigned char c) { return c == '\n' ? 1 : 0; });
    if (separator == '\t') {
        csv_set_quote(&m_parser, '\0');
    }
    if (!readRow()) {
        failAt(1, "the table has no header");
    }
    m_header.swap(m_row);
    std::vector<std::string> names = m_header;
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    if (names.front().empty() || twice != names.end()) {
        failAt(m_firstLine, names.front().empty()
                                ? "a column of the header has no name"
                                : "the header has \"" + zvConsole::printableUtf8(*twice) + "\" twice");
    }
}

zvBatchTable::~zvBatchTable() { csv_free(&m_parser); }

void zvBatchTable::failAt(long line, const std::string& reason) const {
    throw zvStepFailure{"line " + std::to_string(line), reason};
}

bool zvBatchTable::next(zvBatchEntry& entry) {
    if (!readRow()) {
        return false;
    }
    entry = {};
    entry.line = m_firstLine;
    if (m_row.size() != m_header.size()) {
        entry.fault = "it has " + zvConsole::counted(static_cast<std::ptrdiff_t>(m_row.size()), "field") +
                      ", and the header has " + std::to_string(m_header.size());
        return true;
    }
    for (std::size_t i = 0; i < m_row.size(); ++i) {
        if (!m_row[i].empty()) {
            entry.arguments.emplace_back(m_header[i], std::move(m_row[i]));
        }
    }
    return true;
}

// Reads up to the end of a row, which in quotes may go over several lines. Empty lines are skipped.
bool zvBatchTable::readRow() {
    m_row.clear();
    m_bRowEnded = false;
    std::size_t size = 0;
    while (!m_bRowEnded && !m_bEnded) {
        bool isTooLong = false;
        if (!readLine(m_strLine, isTooLong)) {
            parse(nullptr, 0);
            m_bEnded = true;
            break;
        }
        if (size == 0) {
            m_firstLine = lineNumber();
        }
        if (m_strLine.empty() && size == 0) {
            continue;
        }
        size += m_strLine.size() + 1;
        if (isTooLong || size > longestEntry) {
            failAt(m_firstLine, "the row is longer than " + std::to_string(longestEntry) +
                                    " bytes: is a quote not closed?");
        }
        if (m_strLine.find('\0') != std::string::npos) {
            failAt(lineNumber(), "it has a null character");
        }
        m_strLine += '\n';
        parse(m_strLine.data(), m_strLine.size());
    }
    return m_bRowEnded;
}

// Null for the end of the input.
void zvBatchTable::parse(const char* text, std::size_t size) {
    // No exception may pass through the C library.
    const auto takeField = [](void* data, std::size_t length, void* object) {
        auto& table = *static_cast<zvBatchTable*>(object);
        try {
            table.m_row.emplace_back(static_cast<const char*>(data), length);
        } catch (const std::bad_alloc&) {
            table.m_bOutOfMemory = true;
        }
    };
    const auto endRow = [](int, void* table) { static_cast<zvBatchTable*>(table)->m_bRowEnded = true; };
    const bool isWhole = text == nullptr ? csv_fini(&m_parser, takeField, endRow, this) == 0
                                         : csv_parse(&m_parser, text, size, takeField, endRow, this) == size;
    if (m_bOutOfMemory || (!isWhole && csv_error(&m_parser) == CSV_ENOMEM)) {
        throw std::bad_alloc();
    }
    if (!isWhole) {
        failAt(m_firstLine, text == nullptr ? "the input ends inside quotes"
                                            : "a quote stands inside a field, or text after a closing quote");
    }
}
