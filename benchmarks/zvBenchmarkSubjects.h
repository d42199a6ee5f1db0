#ifndef ZV_BENCHMARK_SUBJECTS_H
#define ZV_BENCHMARK_SUBJECTS_H

/// The subjects, one for each file: each makes its inputs and registers its rows.
void zvTextBenchmark();
void zvCollectionsBenchmark();
void zvConditionBenchmark();
void zvConfigurationBenchmark();
void zvXMLBenchmark();
void zvSilentLogBenchmark();
void zvLogBenchmark();
void zvHttpBenchmark();
void zvJavaBenchmark();
void zvEventBenchmark();

#endif
