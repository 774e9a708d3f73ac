#include <gtest/gtest.h>

#include <entities/block_reference.h>
#include <entities/spatial_filter.h>

#include "made_drawing.h"

namespace {

constexpr const char* kIdentity[] = {"1", "0", "0", "0", "0", "1", "0", "0", "0", "0", "1", "0"};

void append(Groups& groups, const Groups& more)
{
    groups.insert(groups.end(), more.begin(), more.end());
}

/// A reference with a filter that has these groups behind its subclass marker.
ReadDrawing drawingWith(const Groups& filter)
{
    const Groups reference{{0, "INSERT"},  {5, "20"},  {102, "{ACAD_XDICTIONARY"},
                           {360, "30"},    {102, "}"}, {100, "AcDbBlockReference"},
                           {2, "Missing"}, {10, "1"},  {20, "2"}};
    Groups objects{{0, "DICTIONARY"},
                   {5, "30"},
                   {330, "20"},
                   {3, "ACAD_FILTER"},
                   {360, "31"},
                   {0, "DICTIONARY"},
                   {5, "31"},
                   {330, "30"},
                   {3, "SPATIAL"},
                   {360, "32"},
                   {0, "SPATIAL_FILTER"},
                   {5, "32"},
                   {102, "{ACAD_XDICTIONARY"},
                   {360, "40"},
                   {102, "}"},
                   {330, "31"},
                   {100, "AcDbFilter"},
                   {100, "AcDbSpatialFilter"}};
    append(objects, filter);
    return readBytes(
        asText(drawing({section("ENTITIES", reference), section("OBJECTS", objects)})));
}

std::vector<KdGePoint3d> boundaryIn(const ReadDrawing& drawn)
{
    const auto* reference = drawn.entity<KdDbBlockReference>(0);
    const OpenForRead<KdDbSpatialFilter> filter(reference ? KdDbSpatialFilter::filterOf(*reference)
                                                          : KdDbObjectId());
    EXPECT_TRUE(filter);
    return filter ? filter->boundaryInBlock() : std::vector<KdGePoint3d>();
}

Groups matrices()
{
    // Into the block: half the size, then by (-3, -4). Into the boundary's frame: by (10, 0).
    Groups groups;
    for (const char* number : {"0.5", "0", "0", "-3", "0", "0.5", "0", "-4", "0", "0", "0.5", "0"})
        groups.emplace_back(40, number);
    for (const char* number : {"1", "0", "0", "10", "0", "1", "0", "0", "0", "0", "1", "0"})
        groups.emplace_back(40, number);
    return groups;
}

TEST(SpatialFilter, HasItsBoundaryInTheFrameOfTheBlock)
{
    Groups groups{{70, "3"}, {10, "10"}, {20, "0"},  {10, "14"}, {20, "0"}, {10, "14"},
                  {20, "8"}, {210, "0"}, {220, "0"}, {230, "1"}, {11, "5"}, {21, "6"},
                  {31, "0"}, {71, "1"},  {72, "0"},  {73, "0"}};
    append(groups, matrices());
    // (14, 8) is (4, 8) in the world, and (2, 4) - (3, 4) in the block.
    EXPECT_EQ(boundaryIn(drawingWith(groups)),
              (std::vector<KdGePoint3d>{{-3, -4, 0}, {-1, -4, 0}, {-1, 0, 0}}));
}

TEST(SpatialFilter, TellsTheFrontPlaneFromTheMatrices)
{
    Groups groups{{70, "2"}, {10, "10"}, {20, "0"}, {10, "14"}, {20, "8"},
                  {71, "1"}, {72, "1"},  {40, "7"}, {73, "1"},  {41, "-7"}};
    append(groups, matrices());
    EXPECT_EQ(boundaryIn(drawingWith(groups)),
              (std::vector<KdGePoint3d>{{-3, -4, 0}, {-1, -4, 0}, {-1, 0, 0}, {-3, 0, 0}}));
}

TEST(SpatialFilter, BearsMissingMatrices)
{
    Groups groups{{10, "1"}, {20, "2"}, {10, "3"}, {20, "4"}};
    EXPECT_EQ(boundaryIn(drawingWith(groups)),
              (std::vector<KdGePoint3d>{{1, 2, 0}, {3, 2, 0}, {3, 4, 0}, {1, 4, 0}}));
    for (const char* number : kIdentity)
        groups.emplace_back(40, number);
    groups.emplace_back(40, "5"); // of a second one, which is damaged, and no front plane
    EXPECT_EQ(boundaryIn(drawingWith(groups)).size(), 4U);
}

TEST(SpatialFilter, WithoutTwoCornersHasNoBoundary)
{
    EXPECT_TRUE(boundaryIn(drawingWith({{70, "2"}, {10, "10"}, {20, "0"}})).empty());
}

TEST(SpatialFilter, CanBeOff)
{
    for (const bool on : {true, false}) {
        const ReadDrawing drawn = drawingWith({{71, on ? "1" : "0"}});
        const OpenForRead<KdDbSpatialFilter> filter(
            KdDbSpatialFilter::filterOf(*drawn.entity<KdDbBlockReference>(0)));
        ASSERT_TRUE(filter);
        EXPECT_EQ(filter->isEnabled(), on);
    }
}

/// A filter whose boundary hides its inside. Its own boundary shows much the same.
ReadDrawing invertedDrawing(const char* comparedCorner)
{
    return drawingWith({{10, "0"},
                        {20, "0"},
                        {10, "9"},
                        {20, "0"},
                        {10, "9"},
                        {20, "8"},
                        {0, "DICTIONARY"},
                        {5, "40"},
                        {330, "32"},
                        {3, "ACAD_XREC_ROUNDTRIP"},
                        {360, "41"},
                        {0, "XRECORD"},
                        {5, "41"},
                        {330, "40"},
                        {100, "AcDbXrecord"},
                        {280, "1"},
                        {102, "ACAD_INVERTEDCLIP_ROUNDTRIP"},
                        {10, "2"},
                        {20, "3"},
                        {30, "0"},
                        {10, "5"},
                        {20, "6"},
                        {30, "0"},
                        {102, "ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE"},
                        {10, "0"},
                        {20, "0"},
                        {30, "0"},
                        {10, "9"},
                        {20, "0"},
                        {30, "0"},
                        {10, "9"},
                        {20, comparedCorner},
                        {30, "0"}});
}

TEST(SpatialFilter, RunsAroundWhatItHides)
{
    EXPECT_EQ(boundaryIn(invertedDrawing("8")), (std::vector<KdGePoint3d>{{2, 3, 0},
                                                                          {5, 3, 0},
                                                                          {5, 6, 0},
                                                                          {2, 6, 0},
                                                                          {2, 3, 0},
                                                                          {0, 0, 0},
                                                                          {9, 0, 0},
                                                                          {9, 8, 0},
                                                                          {0, 8, 0},
                                                                          {0, 0, 0}}));
}

TEST(SpatialFilter, IsNoMoreInvertedAfterItsBoundaryHasChanged)
{
    EXPECT_EQ(boundaryIn(invertedDrawing("7")),
              (std::vector<KdGePoint3d>{{0, 0, 0}, {9, 0, 0}, {9, 8, 0}}));
}

TEST(SpatialFilter, IsMissingOfMostReferences)
{
    const ReadDrawing drawn = readBytes(asText(drawing(
        {section("ENTITIES", {{0, "INSERT"}, {5, "20"}, {2, "A"}, {10, "1"}, {20, "2"}})})));
    EXPECT_TRUE(KdDbSpatialFilter::filterOf(*drawn.entity<KdDbBlockReference>(0)).isNull());
}

} // namespace
