// Large files are mapped: what others do to them meanwhile crashes nothing and does not go
// unnoticed.
#include <chrono>
#include <fstream>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <entities/line.h>

#include "byte_scan.h"
#include "large_drawing.h"

namespace {

using dxf::FileBytes;
using testing::HasSubstr;

namespace fs = std::filesystem;

std::string narrow(const KdString& text)
{
    const std::wstring_view view = text;
    return std::string(view.begin(), view.end());
}

/// Some file systems count time in steps.
void letTimePass()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

void overwrite(const fs::path& file, std::uint64_t place, const std::string& bytes)
{
    letTimePass();
    std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp(static_cast<std::streamoff>(place));
    stream << bytes;
}

std::size_t zerosIn(std::string_view bytes)
{
    std::size_t zeros = 0;
    for (const char c : bytes)
        zeros += c == '\0' ? 1 : 0;
    return zeros;
}

class FileInUse : public testing::Test
{
  protected:
    FileBytes bytesOf(FileBytes::Keep keep = FileBytes::Keep::AsItSuits) const
    {
        FileBytes bytes;
        KdString error;
        EXPECT_EQ(FileBytes::read(file.path(), keep, bytes, error), eOk);
        return bytes;
    }

    const std::string content = largeDrawing();
    const TemporaryFile file{content};
};

TEST_F(FileInUse, HasItsBytesAndZerosBehindThem)
{
    const FileBytes bytes = bytesOf();
    EXPECT_EQ(bytes.view(), content);
    EXPECT_EQ(zerosIn({bytes.data() + bytes.size(), dxf::kReadablePastEnd}), dxf::kReadablePastEnd);
    EXPECT_TRUE(bytes.isIntact());
}

TEST_F(FileInUse, HasZerosBehindAnEndThatIsThatOfAPage)
{
    const std::string pages((std::size_t{1} << 20) * 2, 'x');
    const TemporaryFile whole(pages);
    FileBytes bytes;
    KdString error;
    ASSERT_EQ(FileBytes::read(whole.path(), FileBytes::Keep::AsItSuits, bytes, error), eOk);
    EXPECT_EQ(zerosIn({bytes.data(), bytes.size() + dxf::kReadablePastEnd}), dxf::kReadablePastEnd);
}

TEST_F(FileInUse, ReadsAsZerosBehindItsNewEndWhenItIsCutShort)
{
    const FileBytes bytes = bytesOf();
    fs::resize_file(file.path(), 5000);
    EXPECT_EQ(bytes.view().substr(0, 5000), content.substr(0, 5000));
    EXPECT_EQ(zerosIn(bytes.view()), content.size() - 5000);
    EXPECT_FALSE(bytes.isIntact());
}

TEST_F(FileInUse, HasChangedEvenIfItGrowsAgain)
{
    const FileBytes bytes = bytesOf();
    fs::resize_file(file.path(), 5000);
    EXPECT_GT(zerosIn(bytes.view()), 0u);
    std::ofstream(file.path()) << content;
    EXPECT_FALSE(bytes.isIntact());
}

TEST_F(FileInUse, HasChangedWhenAByteIsOverwritten)
{
    const FileBytes bytes = bytesOf();
    overwrite(file.path(), 100, "x");
    EXPECT_FALSE(bytes.isIntact());
}

TEST_F(FileInUse, HasChangedWhenItGrows)
{
    const FileBytes bytes = bytesOf();
    overwrite(file.path(), content.size(), "more");
    EXPECT_FALSE(bytes.isIntact());
}

TEST_F(FileInUse, StaysAsItWasWhenItIsReplacedOrDeleted)
{
    const FileBytes bytes = bytesOf();
    const TemporaryFile other(std::string(content.size(), 'x'));
    fs::rename(other.path(), file.path());
    EXPECT_EQ(bytes.view(), content);
    fs::remove(file.path());
    EXPECT_EQ(bytes.view(), content);
    EXPECT_TRUE(bytes.isIntact());
}

TEST_F(FileInUse, MovesWithItsOwner)
{
    FileBytes first = bytesOf();
    FileBytes second = std::move(first);
    first = FileBytes();
    EXPECT_EQ(second.view(), content);
    fs::resize_file(file.path(), 5000);
    EXPECT_GT(zerosIn(second.view()), 0u);
}

TEST_F(FileInUse, IsNotNeededOnceItsBytesAreCopied)
{
    const FileBytes bytes = bytesOf(FileBytes::Keep::InMemory);
    fs::resize_file(file.path(), 5000);
    EXPECT_EQ(bytes.view(), content);
    EXPECT_TRUE(bytes.isIntact());
}

TEST_F(FileInUse, MayBeOpenManyTimes)
{
    std::vector<FileBytes> all;
    for (int i = 0; i < 100; ++i)
        all.push_back(bytesOf());
    EXPECT_EQ(all.back().view(), content);
    all.clear();
    EXPECT_EQ(bytesOf().view(), content);
}

TEST_F(FileInUse, LeavesTheBusErrorsOfOthersAsTheyAre)
{
    const FileBytes bytes = bytesOf();
    EXPECT_DEATH(
        {
            const int descriptor = open(file.path().c_str(), O_RDONLY);
            void* const place =
                mmap(nullptr, content.size(), PROT_READ, MAP_PRIVATE, descriptor, 0);
            fs::resize_file(file.path(), 10);
            [[maybe_unused]] const volatile char last =
                static_cast<const char*>(place)[content.size() - 1];
            _exit(0);
        },
        "");
}

/// Reads the file while `meddle` does something to it, when a part of the work is done.
KdErrorStatus readWhile(const fs::path& file, double part, const std::function<void()>& meddle,
                        KdString& error)
{
    bool isDone = false;
    ReadOptions options;
    options.readAllMembers = true;
    options.progress = [&](double fraction) {
        if (!isDone && fraction >= part)
            meddle();
        isDone = isDone || fraction >= part;
        return true;
    };
    ReadReport report;
    std::unique_ptr<KdDbDatabase> database;
    const KdErrorStatus status = readDrawing(file, database, report, options);
    error = report.error;
    EXPECT_EQ(database != nullptr, status == eOk);
    return status;
}

TEST_F(FileInUse, IsRefusedWhenItIsCutShortWhileItIsRead)
{
    for (const double part : {0.15, 0.4, 0.7}) {
        const TemporaryFile mine(content);
        KdString error;
        const auto cut = [&] { fs::resize_file(mine.path(), 10000); };
        EXPECT_EQ(readWhile(mine.path(), part, cut, error), eFileAccessError) << part;
        EXPECT_THAT(narrow(error), HasSubstr("was changed by another program"));
    }
}

TEST_F(FileInUse, IsRefusedWhenItIsOverwrittenWhileItIsRead)
{
    KdString error;
    const auto meddle = [&] { overwrite(file.path(), 3000, "99999"); };
    EXPECT_EQ(readWhile(file.path(), 0.3, meddle, error), eFileAccessError);
    EXPECT_THAT(narrow(error), HasSubstr("was changed by another program"));
}

TEST_F(FileInUse, TellsADrawingThatItsMembersMayBeWrong)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    ASSERT_EQ(readDrawing(file.path(), database, report), eOk);
    EXPECT_TRUE(database->source()->isIntact());
    fs::resize_file(file.path(), 5000);
    for (const KdDbObject* object : database->objects())
        object->extensionDictionary(); // has its members read
    EXPECT_FALSE(database->source()->isIntact());
}

TEST_F(FileInUse, MayGoOnceItHasBeenReadIntoMemory)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    ReadOptions options;
    options.fileWillGo = true;
    ASSERT_EQ(readDrawing(file.path(), database, report, options), eOk);
    fs::resize_file(file.path(), 5000);
    std::size_t lines = 0;
    for (const KdDbObject* object : database->objects()) {
        const auto* line = dynamic_cast<const KdDbLine*>(object);
        lines += line && line->linetypeScale() == 2.0 ? 1u : 0u;
    }
    EXPECT_EQ(lines, report.entities);
    EXPECT_TRUE(database->source()->isIntact());
}

} // namespace
