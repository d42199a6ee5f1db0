#ifndef ZV_BENCHMARK_SUBJECTS_H
#define ZV_BENCHMARK_SUBJECTS_H

/// The subjects, one per source file: each creates its inputs and registers its rows.
void zvTextBenchmark();
void zvCollectionsBenchmark();
void zvConditionBenchmark();
void zvConfigurationBenchmark();
void zvMappingBenchmark();
void zvXMLBenchmark();
void zvSilentLogBenchmark();
void zvLogBenchmark();
void zvHttpBenchmark();
void zvJavaBenchmark();
void zvEventBenchmark();
void zvWholeEventBenchmark();

#endif
