#include "ascii_groups.h"

namespace dxf {
bool AsciiGroups::nextOfAnyForm(Group& group)
{
    std::string_view line;
    for (;;) {
        group.offset = m_lines.offset();
        if (!m_lines.next(line))
            return false;
        if (!parseCode(line, group.code)) {
            noteBadCode(line, group.offset);
            continue;
        }
        if (!m_lines.next(group.text))
            return false;
        if (group.code != kComment)
            return true;
    }
}

bool AsciiGroups::parseCode(std::string_view line, int& code)
{
    const char* at = line.data();
    const char* const end = at + line.size();
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    const bool negative = at != end && *at == '-';
    at += negative ? 1 : 0;
    unsigned value = 0;
    const char* const digits = at;
    for (; at != end && static_cast<unsigned>(*at - '0') < 10 && value < 100000; ++at)
        value = value * 10 + static_cast<unsigned>(*at - '0');
    if (at == digits)
        return false;
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    code = negative ? -static_cast<int>(value) : static_cast<int>(value);
    return at == end && value < 32768;
}

void AsciiGroups::noteBadCode(std::string_view line, std::uint64_t offset) const
{
    // Blank lines are harmless where they do no more than end a file.
    if (m_findings && !trimmed(line).empty())
        m_findings->add(DrawingFinding::BadGroupCode, offset);
}

} // namespace dxf
