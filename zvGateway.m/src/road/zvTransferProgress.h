#ifndef ZV_TRANSFER_PROGRESS_H
#define ZV_TRANSFER_PROGRESS_H

#include <optional>
#include <string>

#include "zvProgressMeter.h"
#include "zvString.h"
#include "zvTypes.h"

/// How far the transfer of a file is, told to whoever waits for it: on a terminal in a line that is
/// rewritten, once the transfer takes more than a second, and elsewhere in a line every ten seconds.
class zvTransferProgress {
public:
    using Clock = zvProgressMeter::Clock;

    zvTransferProgress() = default;
    zvTransferProgress(const zvTransferProgress&) = delete;
    zvTransferProgress& operator=(const zvTransferProgress&) = delete;
    ~zvTransferProgress();

    /// The transfer of a file begins.
    void begin(Clock::time_point now = Clock::now());
    /// So many bytes of the local file have been moved; a `total` below 0 is not known.
    void update(const zvString& file, zvInt64 bytes, zvInt64 total, Clock::time_point now = Clock::now());

private:
    std::string state(const char* separator, zvInt64 bytes, zvInt64 total) const;

    Clock::time_point m_begin;
    Clock::time_point m_told;
    std::optional<zvProgressMeter> m_meter;
};

#endif
