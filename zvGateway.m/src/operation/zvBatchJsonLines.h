#ifndef ZV_BATCH_JSON_LINES_H
#define ZV_BATCH_JSON_LINES_H

#include "zvBatchInput.h"

/// A batch with one JSON object of arguments a line; empty lines are skipped. Values are texts, whole
/// numbers, true and false.
class zvBatchJsonLines : public zvBatchInput {
public:
    explicit zvBatchJsonLines(std::istream& stream) : zvBatchInput(stream) {}

    bool next(zvBatchEntry& entry) override;

private:
    std::string m_strLine;
};

#endif
