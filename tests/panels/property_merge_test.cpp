#include <kwdraw/panels/property_merge.h>

#include <algorithm>

#include "support.h"

using namespace panels_test;
using namespace std::chrono_literals;

namespace {

class Merge : public PanelsTest
{
  protected:
    void read(const Ids& ids)
    {
        merge.start(ids);
        while (!merge.isDone())
            merge.readOn(1000ms);
    }
    const MergedType* type(const std::wstring& name) const
    {
        for (const MergedType& each : merge.types()) {
            if (each.displayName == name)
                return &each;
        }
        ADD_FAILURE() << "no such type";
        return nullptr;
    }
    MergedProperty property(const std::wstring& name, const MergedType* of = nullptr) const
    {
        for (const MergedProperty& each : merge.common(of)) {
            if (each.name() == name)
                return each;
        }
        ADD_FAILURE() << "no such property";
        return {};
    }
    bool has(const std::wstring& name, const MergedType* of = nullptr) const
    {
        const auto common = merge.common(of);
        return std::any_of(common.begin(), common.end(),
                           [&](const MergedProperty& each) { return each.name() == name; });
    }

    PropertyMerge merge{module};
};

TEST_F(Merge, OfOneEntityHasAllItsPropertiesInTheirOrder)
{
    openKinds();
    const Ids circles = ofType(L"Circle");
    read({circles.front()});
    const auto listed = propertiesOf(module, circles.front(), false);
    const auto common = merge.common(nullptr);
    ASSERT_EQ(common.size(), listed.size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(common[i].key, listed[i].key);
        EXPECT_EQ(common[i].readOnly, listed[i].readOnly);
        EXPECT_FALSE(common[i].varies);
    }
    EXPECT_EQ(property(L"Radius").values.front().number, 12.5);
}

TEST_F(Merge, CountsTheTypesInTheOrderInWhichTheyAreMet)
{
    openMany(25);
    read(everything());
    ASSERT_EQ(merge.types().size(), 2u);
    EXPECT_EQ(merge.types()[0].displayName, L"Circle");
    EXPECT_EQ(merge.types()[0].entities, 3u);
    EXPECT_EQ(merge.types()[1].displayName, L"Line");
    EXPECT_EQ(merge.types()[1].entities, 22u);
}

TEST_F(Merge, TellsWhatVaries)
{
    openMany(4);
    read(everything());
    EXPECT_TRUE(property(L"Layer").varies);
    EXPECT_FALSE(property(L"Color").varies);
}

TEST_F(Merge, TellsWhichCoordinateOfAPointVaries)
{
    openMany(4);
    read(ofType(L"Line"));
    const MergedProperty start = property(L"Start");
    EXPECT_TRUE(start.varies);
    EXPECT_FALSE(start.axisVaries[0]);
    EXPECT_TRUE(start.axisVaries[1]);
    EXPECT_FALSE(start.axisVaries[2]);
}

TEST_F(Merge, OfSeveralTypesHasWhatAllOfThemHave)
{
    openMany(25);
    read(everything());
    EXPECT_TRUE(has(L"Layer"));
    EXPECT_FALSE(has(L"Radius"));
    EXPECT_TRUE(has(L"Radius", type(L"Circle")));
    EXPECT_EQ(property(L"Radius", type(L"Circle")).values.front().number, 2.5);
    EXPECT_FALSE(has(L"Length"));
    for (const MergedProperty& each : merge.common(nullptr)) {
        EXPECT_TRUE(has(each.name(), type(L"Circle")));
        EXPECT_TRUE(has(each.name(), type(L"Line")));
    }
}

TEST_F(Merge, CountsWhatIsReadSoFar)
{
    openMany(5000);
    merge.start(everything());
    merge.readOn(1ms);
    EXPECT_GT(merge.read(), 0u);
    EXPECT_LT(merge.read(), 5000u);
    EXPECT_FALSE(merge.isDone());
    std::size_t counted = 0;
    for (const MergedType& each : merge.types())
        counted += each.entities;
    EXPECT_EQ(counted, merge.read());
}

TEST_F(Merge, OfNothingIsDoneAtOnce)
{
    openPlan();
    merge.start({});
    EXPECT_TRUE(merge.isDone());
    EXPECT_TRUE(merge.common(nullptr).empty());
}

TEST_F(Merge, HasTheAttributesOfBlockReferences)
{
    openPlan();
    for (const KdDbObjectId id : ofType(L"Block Reference")) {
        read({id});
        std::vector<std::wstring> categories;
        for (const MergedProperty& each : merge.common(nullptr))
            categories.push_back(each.category());
        if (std::count(categories.begin(), categories.end(), L"Attributes") > 0)
            return;
    }
    FAIL() << "no reference shows its attributes";
}

/// Lengths that differ beyond the decimals of the drawing read the same.
TEST_F(Merge, TakesForEqualWhatReadsTheSame)
{
    openMany(40);
    const Ids circles = ofType(L"Circle");
    read(circles);
    EXPECT_FALSE(property(L"Radius").varies);
    EXPECT_TRUE(property(L"Center").varies);
}

} // namespace
