#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

const std::vector<std::string> kTypes = texts({"Plane", "Slice", "Boundary", "Volume"});

class SectionProvider : public LoneProviders
{
  protected:
    SectionProvider()
    {
        SectionMembers& members = section.edit();
        members.name = L"Cut";
        members.topPlane = 5;
        members.bottomPlane = 15;
        members.thicknessDepth = 0.75;
        members.vertices = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
        members.state = KdDbSection::kBoundary;
        members.slice = true;
    }
    std::vector<std::string> answer(const wchar_t* key, bool withChoices = false)
    {
        return ask(provider, &section, key, false, withChoices).chain;
    }

    KdDbSection section;
    KdDbSection_Extension provider;
};

TEST_F(SectionProvider, TellsOfASliceOnlyTheTwoPointsOfItsLine)
{
    expectProvider<KdDbSection_Extension>(
        section, {{78229, L"Section Object:Name", false, "5005 Cut"},
                  {78230, L"Section Object:Live section", false, "290 false"},
                  {78231, L"Section Object:Type", false, "5005 Slice", kTypes},
                  {78232, L"Geometry:Top plane", false, "5001 5"},
                  {78233, L"Geometry:Bottom plane", false, "5001 15"},
                  {78234, L"Geometry:Section offset", false, "5001 0"},
                  {78235, L"Geometry:Slice thickness", false, "5001 0.75"},
                  pointRow(78236, L"Geometry:Vertex", {"5009 1,2,3", "5009 4,5,6"})});
}

TEST_F(SectionProvider, TellsAllPointsOfOtherSections)
{
    section.edit().state = KdDbSection::kVolume;
    EXPECT_THAT(answer(L"Geometry:Vertex"), ElementsAre("5009 1,2,3", "5009 4,5,6", "5009 7,8,9"));
}

TEST_F(SectionProvider, HasASliceThicknessWithoutASliceOnlyForLists)
{
    section.edit().slice = false;
    const Answer alone = ask(provider, &section, L"Geometry:Slice thickness");
    EXPECT_EQ(alone.status, 1);
    EXPECT_THAT(alone.chain, ElementsAre("5000 nothing"));
    EXPECT_THAT(answer(L"Geometry:Slice thickness", true), ElementsAre("5001 0"));
}

TEST_F(SectionProvider, NamesTheTypeByStateAndSlice)
{
    const struct
    {
        int state;
        bool slice;
        const char* name;
    } kRows[] = {{1, false, "5005 Plane"},
                 {1, true, "5005 Plane"},
                 {2, false, "5005 Boundary"},
                 {4, true, "5005 Volume"},
                 {3, true, "5005 "}};
    for (const auto& row : kRows) {
        section.edit().state = row.state;
        section.edit().slice = row.slice;
        EXPECT_THAT(answer(L"Section Object:Type"), ElementsAre(row.name));
    }
}

TEST_F(SectionProvider, IsLiveIfTheDrawingsManagerKeepsItLive)
{
    auto* drawn = add<KdDbSection>();
    auto* manager = new KdDbSectionManager;
    drawing.addObject(manager, drawing.namedObjectsDictionaryId());
    enter(drawing.namedObjectsDictionaryId(), L"ACAD_SECTION_MANAGER", manager->objectId());
    const auto isLive = [&] {
        return ask(provider, drawn, L"Section Object:Live section").chain.front();
    };
    EXPECT_EQ(isLive(), "290 false");
    change(manager, [](SectionManagerMembers& members) { members.live = true; });
    EXPECT_EQ(isLive(), "290 false");
    change(manager,
           [&](SectionManagerMembers& members) { members.sections = {drawn->objectId()}; });
    EXPECT_EQ(isLive(), "290 true");
}

} // namespace
