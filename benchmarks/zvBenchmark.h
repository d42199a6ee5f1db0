#ifndef ZV_BENCHMARK_H
#define ZV_BENCHMARK_H

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

/// The clock for a row's ratio: CPU time, wall-clock time if another process or thread does part of the work,
/// or the CPU time of the processes that the work starts and waits for.
enum class zvBenchmarkClock { cpu, wall, children };

/// The seconds of CPU time that ended child processes took.
inline double zvChildrenSeconds() {
    struct rusage usage {};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A row of the result table: one workload, run by the library and by its peers.
///
/// A workload is any repeatable callable; its return value is protected from being optimised away.
class zvBenchmarkRow {
public:
    explicit zvBenchmarkRow(std::string work, zvBenchmarkClock clock = zvBenchmarkClock::cpu)
        : m_work(std::move(work)), m_clock(clock) {}

    template <class Work>
    const zvBenchmarkRow& ours(Work work) const {
        return add("ours", work);
    }
    /// `wanted` is the highest acceptable ratio of our time to the peer's.
    template <class Work>
    const zvBenchmarkRow& peer(const std::string& name, const std::string& wanted, Work work) const {
        return add(name + '|' + wanted, work);
    }
    /// A lower bound for comparison only, without a wanted ratio.
    template <class Work>
    const zvBenchmarkRow& alongside(const std::string& name, Work work) const {
        return peer(name, "", work);
    }

private:
    template <class Work>
    const zvBenchmarkRow& addForChildren(const std::string& who, Work work) const {
        benchmark::RegisterBenchmark((m_work + '|' + who).c_str(), [work](benchmark::State& state) mutable {
            for (auto _ : state) {
                const double before = zvChildrenSeconds();
                benchmark::DoNotOptimize(work());
                state.SetIterationTime(zvChildrenSeconds() - before);
            }
        })->UseManualTime();
        return *this;
    }

    template <class Work>
    const zvBenchmarkRow& add(const std::string& who, Work work) const {
        if (m_clock == zvBenchmarkClock::children) {
            return addForChildren(who, work);
        }
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

/// Aborts the program if the results of the library and a peer differ.
inline void zvBenchmarkRequire(bool fact, const char* otherwise) {
    if (!fact) {
        std::fprintf(stderr, "%s\n", otherwise);
        std::exit(EXIT_FAILURE);
    }
}

#endif
