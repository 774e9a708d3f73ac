// Measures loading and selecting over generated drawings.
#include <algorithm>
#include <iostream>

#include <common/module.h>
#include <editor/command_line.h>

#include "sample_drawing.h"
#include "suites.h"

namespace {

bool drawingsAreThere()
{
    const auto isThere = [](long entities) {
        if (std::filesystem::exists(sampleDrawing(entities)))
            return true;
        std::cerr << "quick_select_benchmark: " << sampleDrawing(entities).native()
                  << " is missing: build the target benchmark_drawings\n";
        return false;
    };
    return std::ranges::all_of(kSampleSizes, isThere) &&
           std::ranges::all_of(kDistinctSizes, isThere);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) || !drawingsAreThere())
        return 1;
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "quick_select_benchmark: " << module.error() << '\n';
        return 1;
    }
    kdutSetPrintSink([](std::wstring_view) {}); // each run prints a line
    for (const long entities : kSampleSizes) {
        registerBaselines(entities);
        registerLoading(entities);
        registerKinds(entities);
        registerQuickSelect(module, entities);
    }
    for (const long entities : kDistinctSizes) {
        registerDistinctLoading(entities);
        registerDistinct(module, entities);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
