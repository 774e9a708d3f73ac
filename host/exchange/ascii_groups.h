// Reads groups from the text form: a line with the code, a line with the value.
#pragma once

#include "findings.h"
#include "group.h"
#include "line_splitter.h"

namespace dxf {

class AsciiGroups
{
  public:
    /// Reads `data` from `begin` to `end`; see `kReadablePastEnd`. `findings` may be null.
    AsciiGroups(const char* data, std::size_t begin, std::size_t end, Findings* findings)
        : m_lines(data, begin, end), m_findings(findings)
    {
    }

    /// The next group that is no comment; false at the end. A line that should be a group code and
    /// is none is left out, which finds the way back after a text with a line break in it.
    bool next(Group& group)
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
    /// The next group 0, leaving out all others; false at the end.
    bool nextRecord(Group& group)
    {
        LineSplitter lines = m_lines; // a copy of our own stays in registers
        std::string_view line;
        bool found = false;
        while (!found) {
            group.offset = lines.offset();
            if (!lines.next(line))
                break;
            if (!parseCode(line, group.code))
                noteBadCode(line, group.offset);
            else if (!lines.next(group.text))
                break;
            else
                found = group.code == 0;
        }
        m_lines = lines;
        return found;
    }
    std::size_t offset() const { return m_lines.offset(); }

  private:
    static constexpr int kComment = 999;

    static bool parseCode(std::string_view line, int& code)
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
    void noteBadCode(std::string_view line, std::uint64_t offset) const;

    LineSplitter m_lines;
    Findings* m_findings;
};

} // namespace dxf
