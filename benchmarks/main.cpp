// Measures loading and selecting over generated drawings.
#include <iostream>

#include <common/module.h>
#include <editor/command_line.h>

#include "sample_drawing.h"
#include "suites.h"

namespace {

bool drawingsAreThere()
{
    for (const long entities : kSampleSizes) {
        if (std::filesystem::exists(sampleDrawing(entities)))
            continue;
        std::cerr << "quick_select_benchmark: " << sampleDrawing(entities).native()
                  << " is missing: build the target benchmark_drawings\n";
        return false;
    }
    return true;
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
        registerQuickSelect(module, entities);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
