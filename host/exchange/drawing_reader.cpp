#include <exchange/drawing_reader.h>

#include <new>

#include <malloc.h>

#include <entities/block_nesting.h>

#include "index_pass.h"
#include "member_source.h"
#include "whole_reading.h"

namespace {

using Progress = std::function<bool(double)>;

/// How much of the work is done once the file is in memory, and once it is indexed, where all
/// members are read.
constexpr double kFileIsRead = 0.1;
constexpr double kFileIsIndexed = 0.5;

/// `progress` for a part of the work that lies between two fractions of the whole.
Progress partOf(const Progress& progress, double from, double to)
{
    if (!progress)
        return {};
    return [&progress, from, to](double done) { return progress(from + (to - from) * done); };
}

void noteLoops(const KdDbDatabase& database, dxf::Findings& findings)
{
    for (const KdDbObjectId id : kddbReferencesThatLoop(database)) {
        const OpenForRead<KdDbEntity> reference(id);
        findings.add(DrawingFinding::BlockHoldsItself, reference->source().offset, {},
                     reference->handle());
    }
}

KdErrorStatus cancelled(ReadReport& report)
{
    report.error = L"Reading was cancelled.";
    return eUserBreak;
}

KdErrorStatus open(const std::filesystem::path& file, dxf::DrawingSource& source,
                   ReadReport& report, const ReadOptions& options)
{
    using Keep = dxf::FileBytes::Keep;
    KdErrorStatus status = dxf::FileBytes::read(
        file, options.fileWillGo ? Keep::InMemory : Keep::AsItSuits, source.bytes, report.error,
        partOf(options.progress, 0.0, kFileIsRead));
    if (status == eOk)
        status = dxf::recognise(source.bytes.view(), source.form, report.error);
    report.binary = source.form.binary;
    if (status == eOk && !report.binary)
        source.findings.countLinesIn(source.form.bytes);
    return status;
}

KdErrorStatus read(const std::filesystem::path& file, std::unique_ptr<KdDbDatabase>& database,
                   ReadReport& report, const ReadOptions& options)
{
    auto result = std::make_unique<KdDbDatabase>(KdDbDatabase::Content::Bare);
    auto owned = std::make_unique<dxf::DrawingSource>(*result);
    dxf::DrawingSource& source = *owned;
    source.findings.tellTo(options.found);
    const Progress& progress = options.progress;
    const KdErrorStatus status = open(file, source, report, options);
    if (status != eOk)
        return status;

    const double indexed = options.readAllMembers ? kFileIsIndexed : 1.0;
    const Progress indexing = partOf(progress, kFileIsRead, indexed);
    dxf::IndexPass pass(source, report, indexing);
    if (!pass.run())
        return cancelled(report);
    KdDbDatabaseBuilder(*result).setSource(std::make_unique<dxf::MemberSource>(std::move(owned)));
    pass.finish();
    if (options.readAllMembers) {
        const unsigned threads =
            options.threads > 0 ? options.threads : dxf::threadsWorthWhile(*result);
        if (!dxf::readAllMembers(source, partOf(progress, indexed, 1.0), threads))
            return cancelled(report);
        noteLoops(*result, source.findings);
    }
    if (progress && !progress(1.0))
        return cancelled(report);
    if (!source.bytes.isIntact()) { // asked at last, so that nothing was read after it
        report = {};
        report.error = L"The file was changed by another program while it was read.";
        return eFileAccessError;
    }
    report.findings = source.findings.kept();
    report.totalFindings = source.findings.total();
    report.complete = !source.findings.loseContent();
    database = std::move(result);
    malloc_trim(0); // what reading took for itself alone
    return eOk;
}

} // namespace

KdErrorStatus readDrawing(const std::filesystem::path& file,
                          std::unique_ptr<KdDbDatabase>& database, ReadReport& report,
                          const ReadOptions& options)
{
    report = {};
    try {
        return read(file, database, report, options);
    } catch (const std::bad_alloc&) {
        report = {};
        report.error = L"The file is too large for the memory.";
        return eFileAccessError;
    }
}
