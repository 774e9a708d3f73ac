// Collects what is wrong with a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <exchange/findings.h>

namespace dxf {

/// Line numbers are counted only when they are needed, and onwards from the last one asked for.
class LineNumbers
{
  public:
    LineNumbers() = default;
    explicit LineNumbers(std::string_view bytes) : m_bytes(bytes) {}
    std::uint64_t lineAt(std::uint64_t offset);

  private:
    std::string_view m_bytes;
    std::uint64_t m_offset = 0;
    std::uint64_t m_line = 1;
};

class Findings
{
  public:
    /// Offsets are told as lines of `bytes`; without this call they are told as they are.
    void countLinesIn(std::string_view bytes);

    /// Notes a finding at a place in the file; `detail` is the name or value concerned, if any.
    void add(DrawingFinding kind, std::uint64_t offset, std::wstring_view detail = {});

    const std::vector<ReadFinding>& kept() const { return m_kept; }
    std::size_t total() const { return m_total; }

  private:
    std::vector<ReadFinding> m_kept;
    std::size_t m_total = 0;
    LineNumbers m_lines;
    bool m_countLines = false;
};

} // namespace dxf
