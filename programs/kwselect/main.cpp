#include <clocale>
#include <csignal>
#include <exception>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

#include <common/filter_file.h>
#include <common/recent_filters.h>
#include <runtime/utf8.h>

#include "audit.h"
#include "many_drawings.h"
#include "options.h"
#include "output.h"
#include "plan.h"

namespace {

int fail(const std::string& problem)
{
    std::cerr << "kwselect: " << problem << '\n';
    return kCannotWork;
}

/// The filters with names need no drawing.
int listFilters(const Options& options)
{
    FilterFile filters;
    std::string problem;
    const auto file =
        options.filterFile.empty() ? userFilterFile() : std::filesystem::path(options.filterFile);
    if (!filters.read(file, problem))
        return fail(problem);
    const auto writer =
        makeRowWriter(options.format.value_or(RowFormat::Tabs), {"Name", "Filter"}, std::cout);
    for (const FilterFile::Filter& filter : filters.filters())
        writer->row({textCell(kdToUtf8(filter.name)), textCell(kdToUtf8(filter.text))});
    writer->finish();
    return filters.filters().empty() ? kNothingSelected : kSelected;
}

/// The filters that were run last in kwdraw, as `--recent` counts them.
int listRecent(const Options& options)
{
    const RecentFilters recent(recentFilterFile());
    const auto writer =
        makeRowWriter(options.format.value_or(RowFormat::Tabs), {"Number", "Filter"}, std::cout);
    std::size_t number = 0;
    for (const std::wstring& text : recent.texts())
        writer->row({numberCell(++number), textCell(kdToUtf8(text))});
    writer->finish();
    return number == 0 ? kNothingSelected : kSelected;
}

int searchOne(const Plan& plan, const RowSink& sink)
{
    const SearchResult result = searchDrawing(plan, plan.drawings.front(), sink);
    return result.missing.empty() ? static_cast<int>(result.status)
                                  : fail(plan.drawings.front() + ": " + result.missing);
}

int searchMany(const Plan& plan, const RowSink& sink)
{
    const ManyResult result = searchDrawings(plan, sink);
    if (!result.missing.empty())
        std::cerr << "kwselect: no drawing has what the filter names: " << result.missing << '\n';
    std::cerr << "kwselect: " << result.read << " drawings read, " << result.failed << " failed\n";
    return result.status;
}

/// The status of a run, once all that it printed is written.
int finished(Output& output, int status)
{
    std::string problem;
    return output.finish(problem) ? status : fail(problem);
}

int search(const Plan& plan, Output& output)
{
    const auto writer = makeRowWriter(plan.format, plan.columns, output.stream());
    bool hasRows = false;
    const RowSink sink = [&](const Row& cells) {
        writer->row(cells);
        hasRows = true;
    };
    const int status = plan.hasSeveralDrawings() ? searchMany(plan, sink) : searchOne(plan, sink);
    const bool isUnread = status == kCannotWork || status == kInterrupted;
    if (isUnread && !hasRows)
        return status; // with no file, rather than an empty one
    writer->finish();
    return finished(output, status);
}

int run(const Options& options)
{
    if (options.list == "filters")
        return listFilters(options);
    if (options.list == "recent")
        return listRecent(options);
    Plan plan;
    Output output;
    std::string problem;
    if (!makePlan(options, plan, problem) ||
        !output.open(options.audit ? std::string() : options.output, options.overwrite, problem))
        return fail(problem);
    return options.audit ? finished(output, auditDrawings(plan)) : search(plan, output);
}

/// Files that are opened later must not come to stand for a standard stream that is closed: what is
/// printed would go into them. Printing into this one fails, and is told.
void holdStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", O_RDONLY); // takes the lowest free number, which is this one
    }
}

} // namespace

int main(int argc, char** argv)
{
    holdStandardStreams();
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is told like a full disk
    std::ios::sync_with_stdio(false);
    std::setlocale(LC_CTYPE, "C.UTF-8"); // how wide characters are, for aligned tables
    Options options;
    if (const auto status = readOptions(argc, argv, options))
        return *status;
    try {
        return run(options);
    } catch (const std::exception& problem) { // memory has run out, or the machine is at fault
        return fail(problem.what());
    }
}
