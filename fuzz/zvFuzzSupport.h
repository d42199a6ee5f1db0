#ifndef ZV_FUZZ_SUPPORT_H
#define ZV_FUZZ_SUPPORT_H

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "zvString.h"

/// Runs one input. Each fuzzer defines it; whatever leaves it as an exception is a finding.
void zvFuzzOne(std::string_view input);

/// What the fuzzers share: texts out of bytes, the scratch file, a log that is always read, and the verdict.
namespace zvFuzz {

/// The input as UTF-8, or, where it is none, with each byte as one code unit, so that no input is for
/// nothing.
zvString textOf(std::string_view bytes);
/// The input as code units, two bytes each.
std::u16string unitsOf(std::string_view bytes);
std::u16string unitsOf(const zvString& text);
/// The text as UTF-8; "" for one that has no such form.
std::string narrow(const zvString& text);
/// The input's lines, line feeds excluded; always one more than there are line feeds.
std::vector<std::string> linesOf(std::string_view input);

/// Puts the input into this process's scratch file. @return its path
std::string fileOf(std::string_view input);

/// A text that no log line may have, and whether one had it since the process began.
constexpr char secret[] = "zvFuzzSecret";
bool secretWasLogged();

/// Ends the process, for the fuzzer to keep the input, unless `holds`.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

}  // namespace zvFuzz

#endif
