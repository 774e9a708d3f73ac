#include "ascii_groups.h"

namespace dxf {

void AsciiGroups::noteBadCode(std::string_view line, std::uint64_t offset) const
{
    // Blank lines are harmless where they do no more than end a file.
    if (m_findings && !trimmed(line).empty())
        m_findings->add(DrawingFinding::BadGroupCode, offset);
}

} // namespace dxf
