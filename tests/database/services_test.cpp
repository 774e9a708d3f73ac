#include <database/database.h>

#include <memory>

#include <gtest/gtest.h>

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

} // namespace
