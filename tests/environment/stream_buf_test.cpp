#include <environment/stream_buf.h>

#include <algorithm>
#include <memory>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <environment/font.h>
#include <platform/crash_recorder.h>

#include "support.h"

namespace {

using testing::ElementsAre;

/// Bytes in memory.
class MemoryStream : public KwStreamBuf
{
  public:
    explicit MemoryStream(std::vector<unsigned char> start = {}) : bytes(std::move(start)) {}

    std::uint64_t length() const override { return bytes.size(); }
    std::uint64_t tell() const override { return position; }
    void seek(std::int64_t offset, SeekFrom from) override
    {
        const std::int64_t base = from == kFromStart     ? 0
                                  : from == kFromCurrent ? static_cast<std::int64_t>(position)
                                                         : static_cast<std::int64_t>(bytes.size());
        position = static_cast<std::size_t>(base + offset);
    }
    void rawRead(unsigned char* buffer, unsigned int count) override
    {
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(position), count, buffer);
        position += count;
    }
    void rawWrite(const unsigned char* buffer, unsigned int count) override
    {
        bytes.resize(std::max(bytes.size(), position + count));
        std::copy_n(buffer, count, bytes.begin() + static_cast<std::ptrdiff_t>(position));
        position += count;
    }

    std::vector<unsigned char> bytes;
    std::size_t position = 0;
};

class Recorder : public KdadCrashRecorder
{
  public:
    Recorder() : m_previous(kdadSetCrashRecorder(this)) {}
    ~Recorder() override { kdadSetCrashRecorder(m_previous); }
    void record(const wchar_t* message) noexcept override { messages.emplace_back(message); }

    std::vector<std::wstring> messages;

  private:
    KdadCrashRecorder* m_previous;
};

/// The message of the exception that reading so many bytes throws; empty if it throws none.
std::wstring complaintOf(KwStreamBuf& stream, unsigned int count)
{
    std::vector<unsigned char> buffer(count);
    try {
        stream.getBytes(buffer.data(), count);
    } catch (KwExceptionWithMsg* thrown) {
        const std::unique_ptr<KwExceptionWithMsg> owned(thrown);
        return owned->message();
    }
    return {};
}

TEST(StreamBuf, EndsWhereItsLengthIsReached)
{
    MemoryStream stream({1, 2, 3});
    EXPECT_FALSE(stream.isEOS());
    stream.seek(0, KwStreamBuf::kFromEnd);
    EXPECT_TRUE(stream.isEOS());
    stream.rewind();
    EXPECT_EQ(stream.tell(), 0u);
    stream.seek(2, KwStreamBuf::kFromCurrent);
    EXPECT_EQ(stream.currentStreamBufPosition().offset, 2u);
}

TEST(StreamBuf, GivesBytesUpToItsEnd)
{
    const Recorder recorder;
    MemoryStream stream({1, 2, 3});
    EXPECT_EQ(complaintOf(stream, 2), L"");
    EXPECT_EQ(complaintOf(stream, 1), L"");
    EXPECT_TRUE(stream.isEOS());
    EXPECT_EQ(complaintOf(stream, 0), L"");
    EXPECT_TRUE(recorder.messages.empty());
}

TEST(StreamBuf, RecordsAndThrowsWhenMoreIsAskedFor)
{
    const Recorder recorder;
    MemoryStream stream({1, 2, 3});
    stream.seek(1, KwStreamBuf::kFromStart);
    EXPECT_EQ(complaintOf(stream, 3), L"Out of stream buffer!");
    EXPECT_EQ(stream.tell(), 1u);
    stream.seek(9, KwStreamBuf::kFromStart);
    EXPECT_EQ(complaintOf(stream, 1), L"Out of stream buffer!");
    EXPECT_THAT(recorder.messages, ElementsAre(L"Out of stream buffer!", L"Out of stream buffer!"));
}

TEST(StreamBuf, RecordsAndThrowsBehindItsEndEvenForNoBytes)
{
    const Recorder recorder;
    MemoryStream stream({1, 2, 3});
    stream.seek(4, KwStreamBuf::kFromStart);
    EXPECT_EQ(complaintOf(stream, 0), L"Out of stream buffer!");
    EXPECT_THAT(recorder.messages, ElementsAre(L"Out of stream buffer!"));
}

TEST(StreamBuf, ThrowsWithoutARecorderAsWell)
{
    MemoryStream stream;
    EXPECT_EQ(kdadGetCrashRecorder(), nullptr);
    EXPECT_EQ(complaintOf(stream, 1), L"Out of stream buffer!");
}

TEST(StreamBuf, ReadsWhatThereIs)
{
    MemoryStream stream({1, 2, 3});
    unsigned char buffer[5] = {};
    EXPECT_EQ(stream.readBytes(buffer, 2), 2u);
    EXPECT_EQ(stream.readBytes(buffer, 5), 1u);
    EXPECT_EQ(buffer[0], 3);
    EXPECT_EQ(stream.readBytes(buffer, 5), 0u);
}

TEST(StreamBuf, HandsBlocksToACallback)
{
    MemoryStream stream(std::vector<unsigned char>(10000, 7));
    std::vector<unsigned int> sizes;
    const auto take = [&](const unsigned char* block, unsigned int size) {
        EXPECT_EQ(block[size - 1], 7);
        sizes.push_back(size);
        return sizes.size() != 4;
    };
    EXPECT_EQ(stream.readBytes(20000, take), 10000u);
    EXPECT_THAT(sizes, ElementsAre(4096u, 4096u, 1808u));
    stream.rewind();
    EXPECT_EQ(stream.readBytes(20000, take), 4096u) << "the fourth block in all ends it";
}

TEST(StreamBuf, CopiesBetweenStreams)
{
    std::vector<unsigned char> content(5000);
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i] = static_cast<unsigned char>(i);
    MemoryStream source(content);
    MemoryStream target;
    EXPECT_EQ(target.copyFrom(source, 6000), 5000u);
    EXPECT_EQ(target.bytes, content);
    target.rewind();
    MemoryStream third;
    EXPECT_EQ(target.copyTo(third, 3), 3u);
    EXPECT_THAT(third.bytes, ElementsAre(0, 1, 2));
    const unsigned char more[] = {9, 8};
    third.writeBytes(more, 2);
    third.writeBytes(nullptr, 0);
    EXPECT_THAT(third.bytes, ElementsAre(0, 1, 2, 9, 8));
}

TEST(StreamBuf, HasNoPositionsOfItsOwn)
{
    MemoryStream stream({5, 6});
    KwStreamBufPos position{1};
    unsigned char byte = 9;
    EXPECT_EQ(stream.getByteByPos(position), 0);
    EXPECT_EQ(stream.getStreamPosition(position), -1);
    stream.setByteByPos(position, 7);
    stream.getBytesByPos(position, &byte, 1);
    stream.setBytesByPos(position, &byte, 1);
    stream.setStreamPosition(position);
    stream.moveStreamPosition(position, 1);
    stream.setlength(0);
    stream.truncate();
    EXPECT_EQ(byte, 9);
    EXPECT_EQ(position.offset, 1u);
    EXPECT_THAT(stream.bytes, ElementsAre(5, 6));
    EXPECT_EQ(stream.tell(), 0u);
}

TEST(CrashFile, TakesALineForEachMessage)
{
    const environment_test::Folder folder;
    KdadCrashFile file(folder / "crash.log");
    file.record(L"first \u00E4");
    file.record(nullptr);
    const std::string content = environment_test::contentOf(folder / "crash.log");
    EXPECT_THAT(content, testing::MatchesRegex("[0-9T:-]+Z first \u00E4\n[0-9T:-]+Z \n"));
    KdadCrashFile(folder / "missing/crash.log").record(L"lost");
}

TEST(Font, AnswersAsOneWithoutLetters)
{
    const KdFont font;
    EXPECT_TRUE(font.isShxFont());
    EXPECT_FALSE(font.isSupportReorder());
    EXPECT_FALSE(font.supportsVerticalMode());
    EXPECT_FALSE(font.isValidLeadByte(0x81));
    unsigned char byte = 7;
    EXPECT_EQ(font.getFontData(&byte, 1), -1);
    EXPECT_EQ(byte, 7);
    EXPECT_EQ(font.lastScale(), (KdGePoint2d{1, 1}));
    KdGePoint2d low{1, 2};
    KdGePoint2d high{3, 4};
    font.calculateCharacterBox(L'A', low, high);
    EXPECT_EQ(low, high);
    EXPECT_DOUBLE_EQ(font.getUnderlinePos(10), -2);
    EXPECT_DOUBLE_EQ(font.getOverlinePos(10), 12);
    EXPECT_DOUBLE_EQ(font.getStrikelinePos(10), 5);
}

} // namespace
