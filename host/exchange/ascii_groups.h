// Reads groups from the text form: a line with the code, a line with the value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "findings.h"
#include "group.h"
#include "line_splitter.h"

namespace dxf {

/// The code in a line of up to three characters, which are digits with blanks before them; -1 for
/// all others. Four bytes must be readable.
inline int shortCode(const char* line, std::size_t size)
{
    if (size - 1 >= 3)
        return -1;
    std::uint32_t text;
    std::memcpy(&text, line, sizeof text);
    // Three characters, the first one lowest: blanks take the place of those that are missing.
    const auto missing = static_cast<unsigned>(8 * (3 - size));
    text = (text << missing & 0xFFFFFFu) | 0x202020u >> (24 - missing);
    const std::uint32_t digits = text & 0x0F0F0Fu; // of a blank 0
    const std::uint32_t blanks = (text ^ 0x303030u) >> 4 & 0x0F0F0Fu;
    const std::uint32_t wrong = ((digits + 0x060606u) & 0x101010u) | (blanks & ~0x000101u) |
                                (blanks >> 8 & ~blanks) | (digits & blanks * 0xFu);
    if (wrong != 0)
        return -1;
    return static_cast<int>((digits & 0xFFu) * 100 + (digits >> 8 & 0xFFu) * 10 + (digits >> 16));
}

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
        LineSplitter lines = m_lines; // one of our own can be kept in registers
        std::string_view line;
        group.offset = lines.offset();
        if (lines.next(line)) {
            group.code = shortCode(line.data(), line.size());
            if (group.code >= 0 && group.code != kComment && lines.next(group.text)) {
                m_lines = lines;
                return true;
            }
        }
        return nextOfAnyForm(group);
    }
    /// The next group 0, leaving out all others; false at the end.
    bool nextRecord(Group& group)
    {
        do {
            m_lines.passGroups();
            if (!next(group))
                return false;
        } while (group.code != 0);
        return true;
    }
    std::size_t offset() const { return m_lines.offset(); }

  private:
    static constexpr int kComment = 999;

    /// `next` without a short way for the usual form.
    bool nextOfAnyForm(Group& group);
    static bool parseCode(std::string_view line, int& code);
    void noteBadCode(std::string_view line, std::uint64_t offset) const;

    LineSplitter m_lines;
    Findings* m_findings;
};

} // namespace dxf
