#include <exception>
#include <iostream>

#include <common/catalog.h>
#include <common/module.h>

#include "audit.h"
#include "drawing.h"
#include "dump.h"
#include "exit_status.h"
#include "listing.h"
#include "options.h"
#include "select.h"

namespace {

bool isEmpty(const Module& module, const Options& options)
{
    if (!typesInSpace(module).empty())
        return false;
    std::cerr << "kwselect: " << options.drawing << ": the current space holds no objects\n";
    return true;
}

int work(const Module& module, const Options& options)
{
    if (isEmpty(module, options))
        return kNothingSelected;
    if (!options.list.empty())
        return listCatalog(module, options);
    if (options.dump) {
        dumpEntities(module);
        return kSelected;
    }
    return selectEntities(module, options);
}

int run(const Options& options)
{
    Drawing drawing;
    if (const int status = drawing.open(options.drawing))
        return status;
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "kwselect: " << module.error() << '\n';
        return kCannotWork;
    }
    const int status = work(module, options);
    if (drawing.isComplete())
        return status;
    std::cout.flush();
    drawing.tellDamage();
    return status == kCannotWork ? status : kReadInPart;
}

int runAndFlush(const Options& options)
{
    const int status = options.audit ? auditDrawing(options) : run(options);
    std::cout.flush();
    if (std::cout)
        return status;
    std::cerr << "kwselect: the output can't be written\n";
    return kCannotWork;
}

} // namespace

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    Options options;
    if (const auto status = readOptions(argc, argv, options))
        return *status;
    try {
        return runAndFlush(options);
    } catch (const std::exception& problem) { // memory has run out, or the machine is at fault
        std::cerr << "kwselect: " << problem.what() << '\n';
        return kCannotWork;
    }
}
