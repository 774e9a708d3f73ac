#include <database/goodbye.h>

#include <cstddef>
#include <memory>
#include <new>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>

namespace {

TEST(Services, AreAlwaysThere)
{
    ASSERT_NE(kddbHostApplicationServices(), nullptr);
    EXPECT_EQ(kddbHostApplicationServices(), kddbHostApplicationServices());
}

TEST(Services, HaveALayoutManagerUnlessTheProgramSaysOtherwise)
{
    KdDbHostApplicationServices services;
    EXPECT_NE(services.layoutManager(), nullptr);
    services.setHasLayoutManager(false);
    EXPECT_EQ(services.layoutManager(), nullptr);
    services.setHasLayoutManager(true);
    EXPECT_NE(services.layoutManager(), nullptr);
}

TEST(Services, ForgetTheWorkingDatabaseThatGoes)
{
    KdDbHostApplicationServices* services = kddbHostApplicationServices();
    auto working = std::make_unique<KdDbDatabase>();
    auto other = std::make_unique<KdDbDatabase>();
    services->setWorkingDatabase(working.get());
    other.reset();
    EXPECT_EQ(services->workingDatabase(), working.get());
    working.reset();
    EXPECT_EQ(services->workingDatabase(), nullptr);
}

TEST(Services, SayGoodbyeWhileTheObjectsStillStand)
{
    // The services live as long as the process, and so does the notice; it looks for one database
    // alone.
    static const KdDbDatabase* awaited = nullptr;
    static int goodbyes = 0;
    static KdString layerSeen;
    static bool wasWorking = false;
    kddbHostApplicationServices()->addGoodbyeNotice([](KdDbDatabase& database) {
        if (&database != awaited)
            return;
        ++goodbyes;
        KdDbObjectId id;
        database.table<KdDbLayerTable>().getIdAt(L"0", id);
        layerSeen = OpenForRead<KdDbLayerTableRecord>(id)->name();
        wasWorking = kddbHostApplicationServices()->workingDatabase() == &database;
    });
    auto database = std::make_unique<KdDbDatabase>();
    awaited = database.get();
    kddbHostApplicationServices()->setWorkingDatabase(database.get());
    database.reset();
    awaited = nullptr;
    EXPECT_EQ(goodbyes, 1);
    EXPECT_EQ(layerSeen, L"0");
    EXPECT_TRUE(wasWorking);
}

TEST(Services, SayGoodbyeOnceWhereADrawingGoesInAnotherThread)
{
    static const KdDbDatabase* awaited = nullptr;
    static std::vector<std::thread::id> goodbyes;
    kddbHostApplicationServices()->addGoodbyeNotice([](KdDbDatabase& database) {
        if (&database == awaited)
            goodbyes.push_back(std::this_thread::get_id());
    });
    auto database = std::make_unique<KdDbDatabase>();
    awaited = database.get();
    kddbHostApplicationServices()->setWorkingDatabase(database.get());
    kddbSayGoodbye(*database);
    EXPECT_EQ(kddbHostApplicationServices()->workingDatabase(), nullptr);
    std::thread([&] { database.reset(); }).join();
    awaited = nullptr;
    EXPECT_THAT(goodbyes, testing::ElementsAre(std::this_thread::get_id()));
}

TEST(Services, SayGoodbyeToADrawingThatTakesThePlaceOfOneThatHasGone)
{
    static int goodbyes = 0;
    static const KdDbDatabase* awaited = nullptr;
    kddbHostApplicationServices()->addGoodbyeNotice(
        [](KdDbDatabase& database) { goodbyes += &database == awaited; });
    alignas(KdDbDatabase) std::byte room[sizeof(KdDbDatabase)];
    for (int i = 0; i < 2; ++i) {
        auto* database = new (room) KdDbDatabase;
        awaited = database;
        if (i == 0)
            kddbSayGoodbye(*database);
        database->~KdDbDatabase();
    }
    awaited = nullptr;
    EXPECT_EQ(goodbyes, 2);
}

} // namespace
