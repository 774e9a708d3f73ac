// A record of more bytes than a place in a file can count.
#include <cstring>
#include <limits>
#include <string_view>

#include <sys/mman.h>

#include <gtest/gtest.h>

#include "file_form.h"
#include "findings.h"
#include "record_cursor.h"

namespace {

using namespace dxf;

/// A drawing with a text of four gigabytes, which takes next to no memory as nobody wrote it.
class VastDrawing
{
  public:
    static constexpr std::string_view kHead = "0\nTEXT\n1\n";
    static constexpr std::string_view kTail = "\n0\nEOF\n";
    static constexpr std::size_t kSize = (std::size_t{1} << 32) + (std::size_t{1} << 20);

    VastDrawing()
        : m_bytes(static_cast<char*>(mmap(nullptr, kSize + kReadablePastEnd, PROT_READ | PROT_WRITE,
                                          MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)))
    {
        if (m_bytes == MAP_FAILED)
            return;
        std::memcpy(m_bytes, kHead.data(), kHead.size());
        std::memcpy(m_bytes + kSize - kTail.size(), kTail.data(), kTail.size());
    }
    ~VastDrawing()
    {
        if (isThere())
            munmap(m_bytes, kSize + kReadablePastEnd);
    }
    VastDrawing(const VastDrawing&) = delete;
    VastDrawing& operator=(const VastDrawing&) = delete;

    bool isThere() const { return m_bytes != MAP_FAILED; }
    FileForm form() const { return {.bytes = {m_bytes, kSize}}; }

  private:
    char* m_bytes;
};

TEST(RecordCursor, KeepsTheBeginningOfARecordThatIsTooLongAndTellsOfIt)
{
    const VastDrawing drawing;
    ASSERT_TRUE(drawing.isThere());
    Findings findings;
    const RecordCursor::Progress noProgress;
    RecordCursor cursor(drawing.form(), findings, noProgress);
    ASSERT_TRUE(cursor.next());
    const std::uint64_t begin = cursor.offset();
    cursor.toNextRecord();
    ASSERT_TRUE(cursor.isAt("EOF"));
    const SourceRange range = cursor.rangeFrom(begin, findings);
    EXPECT_EQ(range.offset, begin);
    EXPECT_EQ(range.length, std::numeric_limits<std::uint32_t>::max());
    ASSERT_EQ(findings.kept().size(), 1u);
    EXPECT_EQ(findings.kept()[0].number, static_cast<int>(DrawingFinding::RecordTooLong));
    EXPECT_EQ(findings.kept()[0].line, begin) << "lines were not asked for";
    EXPECT_TRUE(findings.loseContent());
}

} // namespace
