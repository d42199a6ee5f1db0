#ifndef ZV_BENCHMARK_H
#define ZV_BENCHMARK_H

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

/// What a row's ratio is taken of: the processor's time, or the time that passes where others do part of the
/// work.
enum class zvBenchmarkClock { cpu, wall };

/// A row of the table of results: one piece of work, done by the library and by what a user would take
/// instead.
///
/// The work is anything that can be called again and again; what it returns is kept from being optimised
/// away.
class zvBenchmarkRow {
public:
    explicit zvBenchmarkRow(std::string work, zvBenchmarkClock clock = zvBenchmarkClock::cpu)
        : m_work(std::move(work)), m_clock(clock) {}

    template <class Work>
    const zvBenchmarkRow& ours(Work work) const {
        return add("ours", work);
    }
    /// `wanted` is the highest ratio, our time through the peer's, that is good enough.
    template <class Work>
    const zvBenchmarkRow& peer(const std::string& name, const std::string& wanted, Work work) const {
        return add(name + '|' + wanted, work);
    }
    /// What tells how near the library is to what can be had: no ratio is wanted.
    template <class Work>
    const zvBenchmarkRow& alongside(const std::string& name, Work work) const {
        return peer(name, "", work);
    }

private:
    template <class Work>
    const zvBenchmarkRow& add(const std::string& who, Work work) const {
        auto* const benchmark = benchmark::RegisterBenchmark((m_work + '|' + who).c_str(),
                                                             [work](benchmark::State& state) mutable {
                                                                 for (auto _ : state) {
                                                                     benchmark::DoNotOptimize(work());
                                                                 }
                                                             });
        if (m_clock == zvBenchmarkClock::wall) {
            benchmark->UseRealTime();
        }
        return *this;
    }

    std::string m_work;
    zvBenchmarkClock m_clock;
};

/// Ends the program when the library and a peer have not done the same work.
inline void zvBenchmarkRequire(bool fact, const char* otherwise) {
    if (!fact) {
        std::fprintf(stderr, "%s\n", otherwise);
        std::exit(EXIT_FAILURE);
    }
}

#endif
