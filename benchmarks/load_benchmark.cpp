#include "suites.h"

#include <fstream>

#include <malloc.h>
#include <unistd.h>

#include "sample_drawing.h"

namespace {

/// Memory that the process occupies for itself, without pages of files, in bytes.
double privateBytes()
{
    malloc_trim(0); // what earlier benchmarks gave back must not hide what this one takes
    long total = 0;
    long resident = 0;
    long ofFiles = 0;
    std::ifstream("/proc/self/statm") >> total >> resident >> ofFiles;
    return static_cast<double>((resident - ofFiles) * sysconf(_SC_PAGESIZE));
}

/// Tells what a loaded drawing occupies; its file is mapped.
void reportMemory(benchmark::State& state, long entities, const ReadOptions& options)
{
    const double before = privateBytes();
    const auto database = readSample(state, entities, options);
    const double taken = privateBytes() - before;
    state.counters["memory"] =
        benchmark::Counter(taken, benchmark::Counter::kDefaults, benchmark::Counter::OneK::kIs1024);
    state.counters["bytes_per_entity"] = taken / static_cast<double>(entities);
}

Measurement load(bool readAllMembers)
{
    return [readAllMembers](benchmark::State& state, long entities) {
        ReadOptions options;
        options.readAllMembers = readAllMembers;
        for (auto _ : state) {
            auto database = readSample(state, entities, options);
            state.PauseTiming(); // a program reads a drawing and keeps it
            database.reset();
            state.ResumeTiming();
        }
        reportMemory(state, entities, options);
    };
}

} // namespace

void registerDistinctLoading(long entities)
{
    registerMeasurement("distinct/index", entities, load(false));
    registerMeasurement("distinct/all members", entities, load(true));
}

void registerLoading(long entities)
{
    registerMeasurement("load/index", entities, load(false));
    registerMeasurement("load/all members", entities, load(true));
}
