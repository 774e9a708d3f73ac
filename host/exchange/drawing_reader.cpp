#include <exchange/drawing_reader.h>

#include <new>

#include "index_pass.h"
#include "member_source.h"

namespace {

constexpr double kIndexPart = 0.5; ///< of the work, where all members are read

/// Reads the members of all objects; false if cancelled.
bool readAllMembers(const KdDbDatabase& database, const ReadOptions& options)
{
    constexpr std::size_t kObjectsBetweenReports = 16384;
    // Reading a member may add a record that was only referred to, so the end moves.
    for (std::size_t i = 0; i < database.objects().size(); ++i) {
        const double done = static_cast<double>(i) / static_cast<double>(database.objects().size());
        if (i % kObjectsBetweenReports == 0 && options.progress &&
            !options.progress(kIndexPart + (1.0 - kIndexPart) * done))
            return false;
        database.objects()[i]->extensionDictionary(); // any member brings all
    }
    return true;
}

KdErrorStatus cancelled(ReadReport& report)
{
    report.error = L"Reading was cancelled.";
    return eUserBreak;
}

KdErrorStatus read(const std::filesystem::path& file, std::unique_ptr<KdDbDatabase>& database,
                   ReadReport& report, const ReadOptions& options)
{
    auto result = std::make_unique<KdDbDatabase>(KdDbDatabase::Content::Bare);
    auto owned = std::make_unique<dxf::DrawingSource>(*result);
    dxf::DrawingSource& source = *owned;
    KdErrorStatus status = dxf::FileBytes::read(file, source.bytes, report.error);
    if (status == eOk)
        status = dxf::recognise(source.bytes.view(), source.form, report.error);
    if (status != eOk)
        return status;
    report.binary = source.form.binary;
    if (!report.binary)
        source.findings.countLinesIn(source.form.bytes);

    const double part = options.readAllMembers ? kIndexPart : 1.0;
    dxf::RecordCursor::Progress progress;
    if (options.progress)
        progress = [&](double fraction) { return options.progress(part * fraction); };
    dxf::IndexPass pass(source, report, progress);
    if (!pass.run())
        return cancelled(report);
    KdDbDatabaseBuilder(*result).setSource(std::make_unique<dxf::MemberSource>(std::move(owned)));
    pass.finish();
    if (options.readAllMembers && !readAllMembers(*result, options))
        return cancelled(report);
    report.findings = source.findings.kept();
    report.totalFindings = source.findings.total();
    database = std::move(result);
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
