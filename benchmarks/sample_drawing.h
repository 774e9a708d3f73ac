// The generated drawings that the benchmarks work on, and how a benchmark over one is registered.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include <exchange/drawing_reader.h>

/// The numbers of entities in the models of the sample drawings.
constexpr long kSampleSizes[] = {10'000, 100'000, 1'000'000};

/// The same of drawings in which no layer, block or text stands twice.
constexpr long kDistinctSizes[] = {2'000, 20'000, 200'000};

/// The drawing of that size; made by the target `benchmark_drawings`.
std::filesystem::path sampleDrawing(long entities);
long sampleBytes(long entities);

using Measurement = std::function<void(benchmark::State& state, long entities)>;

/// Registers a benchmark over the drawing of that size under the name "name/entities". It reports
/// entities of the model and bytes of the file for each second of wall-clock time.
void registerMeasurement(const std::string& name, long entities, Measurement measurement);

/// Reads a sample drawing; null, with the benchmark ended, if it is not read whole.
std::unique_ptr<KdDbDatabase> readSample(benchmark::State& state, long entities,
                                         const ReadOptions& options);

/// Holds a sample drawing open as the working drawing.
class WorkingDrawing
{
  public:
    WorkingDrawing(benchmark::State& state, long entities, const ReadOptions& options);
    ~WorkingDrawing();
    WorkingDrawing(const WorkingDrawing&) = delete;
    WorkingDrawing& operator=(const WorkingDrawing&) = delete;

    bool isOpen() const { return m_database != nullptr; }

  private:
    std::unique_ptr<KdDbDatabase> m_database;
};
