// usage: zvBenchmarks SUBJECT [options of Google Benchmark]
//        zvBenchmarks --subjects    prints their names
#include <benchmark/benchmark.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "zvBenchmarkSubjects.h"

namespace {

struct Subject {
    const char* name;
    void (*registerRows)();
};

constexpr Subject subjects[] = {
    {"text", zvTextBenchmark},
    {"collections", zvCollectionsBenchmark},
    {"condition", zvConditionBenchmark},
    {"configuration", zvConfigurationBenchmark},
    {"mapping", zvMappingBenchmark},
    {"xml", zvXMLBenchmark},
    {"silent-log", zvSilentLogBenchmark},
    {"log", zvLogBenchmark},
    {"http", zvHttpBenchmark},
    {"java", zvJavaBenchmark},
    {"event", zvEventBenchmark},
    {"whole-event", zvWholeEventBenchmark},
};

void adoptUserLocale() {
    if (std::setlocale(LC_ALL, "C.UTF-8") == nullptr) {
        std::fputs("The locale C.UTF-8 is missing\n", stderr);
        std::exit(EXIT_FAILURE);
    }
}

void printSubjects(std::FILE* out) {
    for (const Subject& subject : subjects) {
        std::fprintf(out, "%s ", subject.name);
    }
    std::fputs("\n", out);
}

const Subject* findSubject(const char* name) {
    for (const Subject& subject : subjects) {
        if (std::strcmp(subject.name, name) == 0) {
            return &subject;
        }
    }
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "";
    if (std::strcmp(name, "--subjects") == 0) {
        printSubjects(stdout);
        return EXIT_SUCCESS;
    }
    const Subject* const subject = findSubject(name);
    if (subject == nullptr) {
        std::fputs("usage: zvBenchmarks SUBJECT [options of Google Benchmark]\nSubjects: ", stderr);
        printSubjects(stderr);
        return EXIT_FAILURE;
    }
    adoptUserLocale();
    unsetenv("GATEWAY_HOME");  // no log, except where a subject sets one up
    int count = argc - 1;
    argv[1] = argv[0];
    benchmark::Initialize(&count, argv + 1);
    subject->registerRows();
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
