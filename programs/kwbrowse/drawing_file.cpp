#include <kwbrowse/drawing_file.h>

#include <database/database.h>
#include <exchange/drawing_reader.h>
#include <runtime/kd_string.h>

DrawingFile::DrawingFile() = default;

DrawingFile::~DrawingFile()
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}

bool DrawingFile::open(const std::string& file, std::wstring& message)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    message.clear();
    if (readDrawing(file, database, report) != eOk) {
        message = report.error;
        return false;
    }
    if (!report.complete)
        message = L"The drawing could be read only in part (" +
                  std::to_wstring(report.totalFindings) + L" faults).";
    kddbHostApplicationServices()->setWorkingDatabase(database.get());
    m_database = std::move(database);
    return true;
}
