// Splits text into lines at LF, CR LF and CR.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dxf {

/// Bytes behind the end of a text that must be readable: line ends are looked for in whole blocks.
constexpr std::size_t kReadablePastEnd = 128;

/// So many places are written at once; the room for them must go so far beyond the last line end.
constexpr std::size_t kLineEndsAtOnce = 16;

/// The places in `text` that end a line: an LF, or a CR that no LF follows. The byte behind the
/// text is looked at, too.
/// @param size  at most 65536
/// @param ends  room for `size + kLineEndsAtOnce` places
/// @return      the number of places
std::size_t findLineEnds(const char* text, std::size_t size, std::uint16_t* ends);

/// Two lines, one after the other. The end of the second is cut off; of that of the first, if it is
/// CR LF, the CR is left.
struct LinePair
{
    std::string_view first;
    std::string_view second;
    std::size_t end = 0; ///< where the line behind them begins
};

/// Finds the line ends of one window of the text after the other, and gives the lines out from
/// there.
class LineSplitter
{
  public:
    LineSplitter(const char* data, std::size_t begin, std::size_t end)
        : m_data(data), m_end(end), m_next(begin), m_window(begin), m_windowEnd(begin)
    {
    }
    LineSplitter(const LineSplitter&) = delete;
    LineSplitter& operator=(const LineSplitter&) = delete;

    /// Where the next line begins.
    std::size_t offset() const { return m_next; }

    /// The next line without its end; false behind the last one. A last line needs no line end.
    bool next(std::string_view& line)
    {
        if (m_next >= m_end)
            return false;
        while (m_at == m_count) {
            if (m_windowEnd == m_end) {
                line = {m_data + m_next, m_end - m_next};
                m_next = m_end;
                return true;
            }
            fill();
        }
        const std::size_t place = m_window + m_ends[m_at++];
        line = {m_data + m_next, sizeOf(m_next, place)};
        m_next = place + 1;
        return true;
    }

    /// The next two lines, without stepping on; false unless both end in the window.
    bool peekPair(LinePair& lines) const
    {
        if (m_at + 1 >= m_count)
            return false;
        const std::size_t first = m_window + m_ends[m_at];
        const std::size_t second = m_window + m_ends[m_at + 1];
        lines.first = {m_data + m_next, first - m_next};
        lines.second = {m_data + first + 1, sizeOf(first + 1, second)};
        lines.end = second + 1;
        return true;
    }
    /// Steps behind lines that were peeked at.
    void takePair(const LinePair& lines)
    {
        m_at += 2;
        m_next = lines.end;
    }

    /// Passes pairs of lines as long as `pass(begin, size)` is true for the first of a pair, of
    /// which a CR before the LF is left. Stops where it is not, and at the latest where a pair does
    /// not end in the window.
    template <class Pass>
    void passPairs(Pass pass)
    {
        std::size_t at = m_at;
        std::size_t next = m_next;
        for (; at + 1 < m_count; at += 2) {
            const std::size_t place = m_window + m_ends[at];
            if (!pass(m_data + next, place - next))
                break;
            next = m_window + m_ends[at + 1] + 1;
        }
        m_at = at;
        m_next = next;
    }

  private:
    static constexpr std::size_t kWindow = 1024;

    /// The size of a line without its end, which begins at `place` or, of CR LF, one before.
    std::size_t sizeOf(std::size_t begin, std::size_t place) const
    {
        const bool isPair = place > begin && m_data[place] == '\n' && m_data[place - 1] == '\r';
        return place - begin - (isPair ? 1 : 0);
    }
    void fill()
    {
        m_window = m_windowEnd;
        m_windowEnd += std::min(kWindow, m_end - m_window);
        m_count = findLineEnds(m_data + m_window, m_windowEnd - m_window, m_ends);
        m_at = 0;
    }

    const char* m_data;
    std::size_t m_end;
    std::size_t m_next;
    std::size_t m_window;    ///< where the window begins
    std::size_t m_windowEnd; ///< and where it ends
    std::size_t m_at = 0;    ///< the number of the next line end in the window
    std::size_t m_count = 0;
    std::uint16_t m_ends[kWindow + kLineEndsAtOnce];
};

} // namespace dxf
