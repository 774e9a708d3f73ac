#include "drawing.h"

#include <algorithm>
#include <iostream>

#include <database/database.h>
#include <exchange/drawing_reader.h>
#include <runtime/utf8.h>

namespace {

/// The first findings, each with its place, and how many more there are.
void tellDamage(const std::string& file, const ReadReport& report)
{
    constexpr std::size_t kMostTold = 10;
    const char* const place = report.binary ? "byte " : "line ";
    const std::size_t told = std::min(report.findings.size(), kMostTold);
    std::cerr << "kwselect: " << file << ": read only in part\n";
    for (std::size_t i = 0; i < told; ++i) {
        const ReadFinding& finding = report.findings[i];
        std::cerr << "  " << place << finding.line << ": " << kdToUtf8(finding.sentence) << '\n';
    }
    if (report.totalFindings > told)
        std::cerr << "  and " << report.totalFindings - told << " more\n";
}

} // namespace

Drawing::Drawing() = default;

Drawing::~Drawing()
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}

bool Drawing::open(const std::string& file)
{
    ReadReport report;
    if (readDrawing(file, m_database, report) != eOk) {
        std::cerr << "kwselect: " << file << ": " << kdToUtf8(report.error) << '\n';
        return false;
    }
    m_complete = report.complete;
    if (!m_complete)
        tellDamage(file, report);
    kddbHostApplicationServices()->setWorkingDatabase(m_database.get());
    return true;
}
