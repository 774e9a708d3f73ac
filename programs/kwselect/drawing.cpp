#include "drawing.h"

#include <iostream>

#include <common/drawing_reading.h>
#include <database/database.h>
#include <runtime/utf8.h>

#include "interrupt.h"
#include "progress_line.h"

ExitStatus readOrTell(const std::string& file, std::unique_ptr<KdDbDatabase>& database,
                      ReadReport& report, ReadOptions options)
{
    const InterruptWatch watch;
    ProgressLine progress;
    options.progress = [&](double fraction) {
        progress.show(file + ": " + std::to_string(static_cast<int>(fraction * 100.0)) + " %");
        return !InterruptWatch::wasInterrupted();
    };
    const KdErrorStatus status = readDrawingOrConvert(file, database, report, options);
    if (status == eOk)
        return kSelected;
    std::cerr << "kwselect: " << file << ": " << kdToUtf8(report.error) << '\n';
    return status == eUserBreak ? kInterrupted : kCannotWork;
}

ExitStatus Drawing::open(const std::string& file)
{
    ReadOptions options;
    options.found = [this](const ReadFinding& finding) { note(finding); };
    m_file = file;
    const ExitStatus status = readOrTell(file, m_database, m_report, options);
    if (status == kSelected)
        kddbHostApplicationServices()->setWorkingDatabase(m_database.get());
    return status;
}

bool Drawing::isIntact() const
{
    if (m_database->source()->isIntact())
        return true;
    std::cerr << "kwselect: " << m_file
              << ": The file was changed by another program during the search; its answer may be "
                 "wrong.\n";
    return false;
}

void Drawing::note(const ReadFinding& finding)
{
    constexpr std::size_t kMostTold = 10;
    if (!drawingFindingLosesContent(static_cast<DrawingFinding>(finding.number)))
        return;
    ++m_lost;
    if (m_damage.size() < kMostTold)
        m_damage.push_back(finding);
}

void Drawing::tellDamage() const
{
    const char* const place = m_report.binary ? "byte " : "line ";
    std::cerr << "kwselect: " << m_file << ": read only in part\n";
    for (const ReadFinding& finding : m_damage)
        std::cerr << "  " << place << finding.line << ": " << kdToUtf8(finding.sentence) << '\n';
    if (m_lost > m_damage.size())
        std::cerr << "  and " << m_lost - m_damage.size() << " more\n";
}
