#include "suites.h"

#include <string>
#include <vector>

#include <unistd.h>

#include <exchange/drawing_writer.h>
#include <runtime/rx_class.h>
#include <runtime/utf8.h>

#include "sample_drawing.h"

namespace {

struct Kind
{
    const char* name;
    const wchar_t* className;
};

constexpr Kind kKinds[] = {
    {"lines", L"AcDbLine"},
    {"polylines", L"AcDbPolyline"},
    {"texts", L"AcDbText"},
    {"arcs", L"AcDbArc"},
    {"circles", L"AcDbCircle"},
    {"block references", L"AcDbBlockReference"},
    {"hatches", L"AcDbHatch"},
    {"splines", L"AcDbSpline"},
    {"dimensions", L"AcDbRotatedDimension"},
};

std::vector<const KdDbObject*> objectsOf(const KdDbDatabase& database, const KdRxClass* rxClass)
{
    std::vector<const KdDbObject*> objects;
    for (const KdDbObject* object : database.objects()) {
        if (object->isA() == rxClass)
            objects.push_back(object);
    }
    return objects;
}

/// Asks each entity of a kind for the first time, which reads all its members.
Measurement readMembers(const Kind& kind)
{
    return [kind](benchmark::State& state, long entities) {
        std::size_t count = 0;
        for (auto _ : state) {
            state.PauseTiming();
            auto database = readSample(state, entities, {});
            if (!database)
                return;
            const auto objects = objectsOf(*database, kdrxFindKdRxClass(kind.className));
            count = objects.size();
            state.ResumeTiming();
            for (const KdDbObject* object : objects)
                benchmark::DoNotOptimize(object->extensionDictionary());
            state.PauseTiming();
            database.reset();
            state.ResumeTiming();
        }
        if (count == 0)
            state.SkipWithError("the drawing has none of the kind");
        state.counters["matches"] = static_cast<double>(count);
    };
}

/// Writes every second entity of the drawing as a drawing of its own.
void writeHalf(benchmark::State& state, long entities)
{
    const auto database = readSample(state, entities, {});
    if (!database)
        return;
    std::vector<KdDbObjectId> half;
    const OpenForRead<KdDbBlockTableRecord> model(database->modelSpaceId());
    for (std::size_t i = 0; i < model->entityIds().size(); i += 2)
        half.push_back(model->entityIds()[i]);
    const auto target = std::filesystem::temp_directory_path() /
                        ("kw_benchmark_" + std::to_string(getpid()) + ".dxf");
    WriteOptions options;
    options.overwrite = true;
    for (auto _ : state) {
        KdString error;
        if (writeSelection(*database, half, target, error, options) != eOk) {
            state.SkipWithError(kdToUtf8(error).c_str());
            break;
        }
    }
    std::filesystem::remove(target);
}

} // namespace

void registerKinds(long entities)
{
    for (const Kind& kind : kKinds)
        registerMeasurement(std::string("members/") + kind.name, entities, readMembers(kind));
    registerMeasurement("write/every second entity", entities, writeHalf);
}
