#include <iostream>

#include <common/module.h>

#include "drawing.h"
#include "dump.h"
#include "exit_status.h"
#include "listing.h"
#include "options.h"
#include "select.h"

namespace {

int work(const Module& module, const Options& options)
{
    if (!options.list.empty())
        return listCatalog(module, options);
    if (options.dump) {
        dumpEntities(module);
        return kSelected;
    }
    return selectEntities(module, options);
}

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    Options options;
    if (const auto status = readOptions(argc, argv, options))
        return *status;
    Drawing drawing;
    if (!drawing.open(options.drawing))
        return kCannotWork;
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "kwselect: " << module.error() << '\n';
        return kCannotWork;
    }
    const int status = work(module, options);
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "kwselect: the output can't be written\n";
        return kCannotWork;
    }
    return status == kCannotWork || drawing.isComplete() ? status : kReadInPart;
}
