#include "drawing.h"

#include <iostream>

#include <database/database.h>
#include <exchange/drawing_reader.h>
#include <runtime/utf8.h>

namespace {

void tellDamage(const std::string& file, const ReadReport& report)
{
    std::cerr << "kwselect: " << file << ": read only in part";
    if (!report.findings.empty()) {
        const ReadFinding& last = report.findings.back();
        std::cerr << "; line " << last.line << ": " << kdToUtf8(last.sentence);
    }
    std::cerr << '\n';
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
