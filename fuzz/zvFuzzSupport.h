#ifndef ZV_FUZZ_SUPPORT_H
#define ZV_FUZZ_SUPPORT_H

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "zvString.h"

/// Runs one input; defined by each fuzzer. An exception that escapes is a finding.
void zvFuzzOne(std::string_view input);

/// Shared by the fuzzers: conversion of bytes to strings, the scratch file, a log that is always read, and
/// checks.
namespace zvFuzz {

/// Decodes the input as UTF-8 or, if it is malformed, each byte as one code unit, so that no input is wasted.
zvString textOf(std::string_view bytes);
/// The input as UTF-16 code units, two bytes each.
std::u16string unitsOf(std::string_view bytes);
std::u16string unitsOf(const zvString& text);
/// The string as UTF-8; "" if it cannot be encoded.
std::string narrow(const zvString& text);
/// The input split at line feeds; always one line more than there are line feeds.
std::vector<std::string> linesOf(std::string_view input);

/// Writes the input to this process's scratch file. @return its path
std::string fileOf(std::string_view input);

/// A secret that must not be logged, and whether it ever was.
constexpr char secret[] = "zvFuzzSecret";
bool secretWasLogged();

/// Aborts unless `holds`, so that the fuzzer keeps the input.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

}  // namespace zvFuzz

#endif
