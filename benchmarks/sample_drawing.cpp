#include "sample_drawing.h"

#include <utility>

std::filesystem::path sampleDrawing(long entities)
{
    return std::filesystem::path(KW_DRAWINGS) / (std::to_string(entities) + ".dxf");
}

long sampleBytes(long entities)
{
    return static_cast<long>(std::filesystem::file_size(sampleDrawing(entities)));
}

void registerMeasurement(const std::string& name, long entities, Measurement measurement)
{
    const auto run = [measurement = std::move(measurement), entities](benchmark::State& state) {
        measurement(state, entities);
        state.SetItemsProcessed(state.iterations() * entities);
        state.SetBytesProcessed(state.iterations() * sampleBytes(entities));
    };
    benchmark::RegisterBenchmark((name + '/' + std::to_string(entities)).c_str(), run)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

std::unique_ptr<KdDbDatabase> readSample(benchmark::State& state, long entities,
                                         const ReadOptions& options)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    const KdErrorStatus status = readDrawing(sampleDrawing(entities), database, report, options);
    const bool whole = status == eOk && report.complete && report.totalFindings == 0 &&
                       report.entities >= static_cast<std::size_t>(entities);
    if (whole)
        return database;
    state.SkipWithError("the drawing was not read whole");
    return nullptr;
}

WorkingDrawing::WorkingDrawing(benchmark::State& state, long entities, const ReadOptions& options)
    : m_database(readSample(state, entities, options))
{
    kddbHostApplicationServices()->setWorkingDatabase(m_database.get());
}

WorkingDrawing::~WorkingDrawing()
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}
