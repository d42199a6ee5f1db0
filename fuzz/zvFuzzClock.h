#ifndef ZV_FUZZ_CLOCK_H
#define ZV_FUZZ_CLOCK_H

#include <string_view>

/// Lets zvFuzzOne() run with a clock: an input that takes more processor time than a second for a megabyte is
/// a finding.
///
/// One input of 512 is repeated up to 128 KiB before it is run: what takes quadratic time is slow only when
/// it is long, and the fuzzer's own inputs are short. Which one depends on its bytes alone, so that a finding
/// can be run again.
namespace zvFuzzClock {

void run(std::string_view input);

}  // namespace zvFuzzClock

#endif
