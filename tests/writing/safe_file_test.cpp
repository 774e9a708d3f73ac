// A file is there whole or not at all, and nothing is replaced by mistake.
#include <csignal>
#include <fstream>

#include <sys/resource.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "../exchange/large_drawing.h"
#include "selection.h"

namespace fs = std::filesystem;

namespace {

/// A drawing in a folder of its own, read, with one entity to be written.
class SavedSelection : public testing::Test
{
  protected:
    SavedSelection()
    {
        const Groups entities{{0, "LINE"}, {5, "30"}, {8, "0"}, {0, "ARC"}, {5, "31"}, {8, "0"}};
        std::ofstream(source) << asText(drawing({section("ENTITIES", entities)}));
        readDrawing(source, database, report);
        database->getObjectId(chosen, 0x30);
    }

    KdErrorStatus write(const fs::path& target, bool overwrite = false)
    {
        WriteOptions options;
        options.overwrite = overwrite;
        return writeSelection(*database, std::vector{chosen}, target, error, options);
    }

    TemporaryFolder folder;
    const fs::path source = folder / "plan.dxf";
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    KdDbObjectId chosen;
    KdString error;
};

TEST_F(SavedSelection, IsAFileLikeAnyOther)
{
    ASSERT_EQ(write(folder / "part.dxf"), eOk);
    struct stat status;
    ASSERT_EQ(stat((folder / "part.dxf").c_str(), &status), 0);
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(status.st_mode & 0777u, 0666u & ~mask);
    EXPECT_EQ(folder.entries(), 2u);
}

TEST_F(SavedSelection, DoesNotReplaceAFile)
{
    std::ofstream(folder / "part.dxf") << "old";
    EXPECT_EQ(write(folder / "part.dxf"), eDuplicateKey);
    EXPECT_EQ(error, L"The file exists already.");
    EXPECT_EQ(contentOf(folder / "part.dxf"), "old");
    EXPECT_EQ(folder.entries(), 2u);
}

TEST_F(SavedSelection, ReplacesAFileWhenAskedToAndKeepsItsRights)
{
    std::ofstream(folder / "part.dxf") << "old";
    fs::permissions(folder / "part.dxf", fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(write(folder / "part.dxf", true), eOk);
    EXPECT_NE(contentOf(folder / "part.dxf").find("LINE"), std::string::npos);
    EXPECT_EQ(fs::status(folder / "part.dxf").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder.entries(), 2u);
}

TEST_F(SavedSelection, NeverReplacesTheFileThatItComesFrom)
{
    const std::string before = contentOf(source);
    fs::create_symlink(source, folder / "link.dxf");
    fs::create_hard_link(source, folder / "twin.dxf");
    for (const char* name : {"plan.dxf", "link.dxf", "twin.dxf"}) {
        EXPECT_EQ(write(folder / name, true), eDuplicateKey) << name;
        EXPECT_EQ(error, L"A drawing can't be written over the file that it comes from.");
    }
    EXPECT_EQ(contentOf(source), before);
}

TEST_F(SavedSelection, IsRefusedWhenItsDrawingWasChangedByOthers)
{
    std::ofstream(folder / "part.dxf") << "old";
    const fs::path large = folder / "large.dxf";
    std::ofstream(large) << largeDrawing();
    ASSERT_EQ(readDrawing(large, database, report), eOk);
    for (const KdDbObject* object : database->objects()) {
        if (object->source().length > 0 && object->isKindOf(KdDbEntity::desc()))
            chosen = object->objectId();
    }
    EXPECT_EQ(write(folder / "whole.dxf"), eOk);
    fs::resize_file(large, 10000);
    EXPECT_EQ(write(folder / "part.dxf", true), eFileAccessError);
    EXPECT_EQ(error, L"The drawing's file was changed by another program since it was read.");
    EXPECT_EQ(contentOf(folder / "part.dxf"), "old");
    EXPECT_EQ(folder.entries(), 4u);
}

TEST_F(SavedSelection, ReplacesWhatALinkPointsToAndNotTheLink)
{
    std::ofstream(folder / "part.dxf") << "old";
    fs::create_symlink(folder / "part.dxf", folder / "link.dxf");
    EXPECT_EQ(write(folder / "link.dxf", true), eOk);
    EXPECT_TRUE(fs::is_symlink(folder / "link.dxf"));
    EXPECT_NE(contentOf(folder / "part.dxf"), "old");
}

TEST_F(SavedSelection, NeedsAFolderThatIsThere)
{
    EXPECT_EQ(write(folder / "missing" / "part.dxf"), eFileAccessError);
    EXPECT_EQ(error, L"The folder does not exist.");
}

TEST_F(SavedSelection, IsNoFolderAndNoDevice)
{
    fs::create_directory(folder / "sub");
    EXPECT_EQ(write(folder / "sub", true), eFileAccessError);
    EXPECT_EQ(error, L"The target is no regular file.");
    EXPECT_EQ(write("/dev/null", true), eFileAccessError);
    EXPECT_EQ(write(folder / "sub"), eDuplicateKey);
}

TEST_F(SavedSelection, LeavesNothingBehindWhenThereIsNoRoom)
{
    std::ofstream(folder / "part.dxf") << "old";
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit narrow{10, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &narrow);
    const KdErrorStatus status = write(folder / "part.dxf", true);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(status, eFileAccessError);
    EXPECT_EQ(error, L"There is no room for the file.");
    EXPECT_EQ(contentOf(folder / "part.dxf"), "old");
    EXPECT_EQ(folder.entries(), 2u);
}

TEST_F(SavedSelection, NeedsEntitiesThatCameFromTheFile)
{
    KdDbDatabase other;
    EXPECT_EQ(writeSelection(other, std::vector{chosen}, folder / "part.dxf", error),
              eInvalidInput);
    EXPECT_EQ(error, L"Only entities that were read from a file can be written.");
    const std::vector wrong{database->modelSpaceId()};
    EXPECT_EQ(writeSelection(*database, wrong, folder / "part.dxf", error), eInvalidInput);
    EXPECT_EQ(writeSelection(*database, std::vector{KdDbObjectId()}, folder / "part.dxf", error),
              eInvalidInput);
    EXPECT_EQ(folder.entries(), 1u);
}

} // namespace
