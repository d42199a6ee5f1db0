#ifndef ZV_BENCHMARK_FILES_H
#define ZV_BENCHMARK_FILES_H

#include <string>

/// The benchmarks' files, in a temporary folder that is removed at exit.
namespace zvBenchmarkFiles {

std::string path(const std::string& name);

}  // namespace zvBenchmarkFiles

#endif
