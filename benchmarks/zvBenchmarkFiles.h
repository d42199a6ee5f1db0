#ifndef ZV_BENCHMARK_FILES_H
#define ZV_BENCHMARK_FILES_H

#include <string>

/// The files that a benchmark works on, in a new folder that the end of the program removes.
namespace zvBenchmarkFiles {

std::string path(const std::string& name);

}  // namespace zvBenchmarkFiles

#endif
