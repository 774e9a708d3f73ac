#include "record_cursor.h"

#include <limits>

namespace dxf {

SourceRange RecordCursor::rangeFrom(std::uint64_t begin, Findings& findings) const
{
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    std::uint64_t length = offset() - begin;
    if (length > kMost) {
        findings.add(DrawingFinding::RecordTooLong, begin);
        length = kMost;
    }
    return {begin, static_cast<std::uint32_t>(length)};
}

void RecordCursor::reportNow()
{
    constexpr std::uint64_t kBytesBetweenReports = 1u << 20;
    m_nextReport = offset() + kBytesBetweenReports;
    const double done = static_cast<double>(offset() - m_begin);
    const double all = static_cast<double>(m_end - m_begin + 1);
    if (m_progress && !m_progress(done / all)) {
        m_cancelled = true;
        m_hasGroup = false;
    }
}

} // namespace dxf
