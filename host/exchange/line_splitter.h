// Splits text into lines at LF, CR LF and CR.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "byte_scan.h"

namespace dxf {

/// Gives the lines of a text out one after the other. Their ends are looked for block by block.
class LineSplitter
{
  public:
    LineSplitter(const char* data, std::size_t begin, std::size_t end) : m_data(data), m_end(end)
    {
        jumpTo(begin);
    }

    /// Where the next line begins.
    std::size_t offset() const { return m_next; }

    /// The next line without its end; false behind the last one. A last line needs no line end.
    bool next(std::string_view& line)
    {
        if (m_next >= m_end)
            return false;
        while (m_lineEnds == 0) {
            m_block += kBlock;
            if (m_block >= m_end) {
                line = {m_data + m_next, m_end - m_next};
                m_next = m_end;
                return true;
            }
            findLineEnds();
        }
        const std::size_t place = m_block + static_cast<std::size_t>(std::countr_zero(m_lineEnds));
        m_lineEnds &= m_lineEnds - 1;
        line = {m_data + m_next, sizeOf(m_next, place)};
        m_next = place + 1;
        return true;
    }

    /// Goes to `place`, where a line begins.
    void jumpTo(std::size_t place)
    {
        m_next = place;
        m_block = place - kBlock; // the block before, so that the next one begins at the line
        m_lineEnds = 0;
    }
    /// Steps behind the groups that `passPlainGroups` passes; the next line is one with a code.
    void passGroups()
    {
        const std::size_t place = passPlainGroups(m_data, m_next, m_end);
        if (place != m_next)
            jumpTo(place);
    }

  private:
    /// The size of a line without its end, which begins at `place` or, of CR LF, one before. Lines
    /// that end otherwise hold no CR: it would have ended them.
    std::size_t sizeOf(std::size_t begin, std::size_t place) const
    {
        const bool isPair = place > begin && m_data[place - 1] == '\r';
        return place - begin - (isPair ? 1 : 0);
    }
    void findLineEnds()
    {
        m_lineEnds = lineEndsIn(m_data + m_block);
        if (m_end - m_block < kBlock)
            m_lineEnds &= (std::uint64_t{1} << (m_end - m_block)) - 1;
    }

    const char* m_data;
    std::size_t m_end;
    std::size_t m_next;
    std::size_t m_block;      ///< where the block begins
    std::uint64_t m_lineEnds; ///< those in the block that are still to come
};

} // namespace dxf
