#ifndef ZV_BATCH_TABLE_H
#define ZV_BATCH_TABLE_H

#include <csv.h>

#include "zvBatchInput.h"

/// A batch that is a table: its header has the arguments' keys, each further row is an event, and an empty
/// field leaves its argument out. With commas a field may stand in quotes, and then have commas, line ends
/// and doubled quotes; with tabs a quote is a character like any other.
class zvBatchTable : public zvBatchInput {
public:
    /// Throws the zvStepFailure of a header that cannot be used.
    zvBatchTable(std::istream& stream, char separator);
    ~zvBatchTable() override;
    zvBatchTable(const zvBatchTable&) = delete;
    zvBatchTable& operator=(const zvBatchTable&) = delete;

    bool next(zvBatchEntry& entry) override;

private:
    bool readRow();
    void parse(const char* text, std::size_t size);
    [[noreturn]] void failAt(long line, const std::string& reason) const;

    csv_parser m_parser{};
    std::vector<std::string> m_header;
    std::vector<std::string> m_row;
    long m_firstLine = 0;
    bool m_bRowEnded = false;
    bool m_bEnded = false;
    bool m_bOutOfMemory = false;
    std::string m_strLine;
};

#endif
