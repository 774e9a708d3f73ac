// Reads groups from the text form: a line with the code, a line with the value.
#pragma once

#include <array>
#include <cstring>
#include <iterator>

#include "findings.h"
#include "group.h"
#include "line_splitter.h"

namespace dxf {

/// Codes of one to three digits, with blanks before or behind them up to three characters, by the
/// lower five bits of each character; -1 for what is none.
using ShortCodes = std::array<std::int16_t, 1 << 15>;
extern const ShortCodes kShortCodes;

/// The code in a line of one to three characters, or -1. Four bytes must be readable.
inline int shortCode(const char* line, std::size_t size)
{
    constexpr std::uint32_t kCharacters[] = {0, 0xFFu, 0xFFFFu, 0xFFFFFFu};
    constexpr std::uint32_t kUpperBits = 0x202020u; // of blanks and of digits
    if (size >= std::size(kCharacters))
        return -1;
    std::uint32_t text;
    std::memcpy(&text, line, sizeof text);
    const std::uint32_t used = kCharacters[size];
    if (((text ^ kUpperBits) & used & 0xE0E0E0u) != 0)
        return -1;
    text &= used; // to the table, characters that are missing are as blanks
    return kShortCodes[(text & 0x1Fu) | (text >> 3 & 0x3E0u) | (text >> 6 & 0x7C00u)];
}

/// The same for a line that may still have the first half of its end, CR LF.
inline int shortCodeOfLine(const char* line, std::size_t size)
{
    const int code = shortCode(line, size);
    return code < 0 && size > 0 && line[size - 1] == '\r' ? shortCode(line, size - 1) : code;
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
        LinePair lines;
        if (!m_lines.peekPair(lines))
            return nextOfAnyForm(group);
        const int code = shortCodeOfLine(lines.first.data(), lines.first.size());
        if (code < 0 || code == kComment)
            return nextOfAnyForm(group);
        group.code = code;
        group.offset = m_lines.offset();
        group.text = lines.second;
        m_lines.takePair(lines);
        return true;
    }
    /// The next group 0, leaving out all others; false at the end.
    bool nextRecord(Group& group)
    {
        do {
            m_lines.passPairs(
                [](const char* line, std::size_t size) { return shortCodeOfLine(line, size) > 0; });
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
