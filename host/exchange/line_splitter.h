// Splits text into lines at LF, CR LF and CR, by masks of 64 bytes at a time.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dxf {

/// Bytes behind the end of a text that must be readable: masks are made of whole blocks.
constexpr std::size_t kReadablePastEnd = 128;

/// Bit n is set if byte n of the 64 at `block` ends a line: an LF, or a CR that no LF follows.
/// Byte 64 is looked at, too.
std::uint64_t lineEnds(const char* block);

class LineSplitter
{
  public:
    LineSplitter(const char* data, std::size_t begin, std::size_t end)
        : m_data(data), m_end(end), m_next(begin), m_block(begin)
    {
        if (begin < end)
            loadMask();
    }

    /// Where the next line begins.
    std::size_t offset() const { return m_next; }

    /// The next line without its end; false behind the last one. A last line needs no line end.
    bool next(std::string_view& line)
    {
        if (m_next >= m_end)
            return false;
        while (m_mask == 0) {
            m_block += 64;
            if (m_block >= m_end) {
                line = {m_data + m_next, m_end - m_next};
                m_next = m_end;
                return true;
            }
            loadMask();
        }
        const std::size_t place = m_block + static_cast<std::size_t>(std::countr_zero(m_mask));
        m_mask &= m_mask - 1;
        std::size_t length = place - m_next;
        if (length > 0 && m_data[place] == '\n' && m_data[place - 1] == '\r')
            --length;
        line = {m_data + m_next, length};
        m_next = place + 1;
        return true;
    }

  private:
    void loadMask()
    {
        m_mask = lineEnds(m_data + m_block);
        const std::size_t left = m_end - m_block;
        if (left < 64)
            m_mask &= (std::uint64_t{1} << left) - 1;
    }

    const char* m_data;
    std::size_t m_end;
    std::size_t m_next;
    std::size_t m_block;
    std::uint64_t m_mask = 0;
};

} // namespace dxf
