// Collects what is wrong with a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include <exchange/findings.h>

namespace dxf {

/// Line numbers are counted only when they are needed. What was counted is kept for every block of
/// bytes, so that findings in any order cost no more than a block each.
class LineNumbers
{
  public:
    LineNumbers() = default;
    explicit LineNumbers(std::string_view bytes) : m_bytes(bytes) {}
    std::uint64_t lineAt(std::uint64_t offset);

  private:
    static constexpr std::uint64_t kBlock = 16 * 1024;

    std::uint64_t lineEndsIn(std::uint64_t begin, std::uint64_t end) const;

    std::string_view m_bytes;
    std::vector<std::uint64_t> m_lines{1}; ///< in which each block begins
    std::uint64_t m_lastOffset = 0;        ///< what was asked for last: the next one is often near
    std::uint64_t m_lastLine = 1;
};

class Findings
{
  public:
    /// Has every further finding told to `sink` as well; see `ReadOptions::found`.
    void tellTo(std::function<void(const ReadFinding&)> sink) { m_sink = std::move(sink); }
    /// Offsets are told as lines of `bytes`; without this call they are told as they are.
    void countLinesIn(std::string_view bytes);

    /// Notes a finding at a place in the file; `detail` is the name or value concerned, `handle`
    /// that of the object concerned, if any.
    void add(DrawingFinding kind, std::uint64_t offset, std::wstring_view detail = {},
             KdDbHandle handle = 0);

    const std::vector<ReadFinding>& kept() const { return m_kept; }
    std::size_t total() const { return m_total; }
    /// True if something that stands in the file was not read.
    bool loseContent() const { return m_loseContent; }

  private:
    std::vector<ReadFinding> m_kept;
    std::function<void(const ReadFinding&)> m_sink;
    std::size_t m_total = 0;
    LineNumbers m_lines;
    bool m_countLines = false;
    bool m_loseContent = false;
};

} // namespace dxf
