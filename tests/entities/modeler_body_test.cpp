#include <cstdint>
#include <cstring>
#include <numbers>

#include <entities/solid3d.h>
#include <entities/surface.h>

#include "body_text.h"
#include "support.h"

using body_text::Writer;

namespace {

constexpr double kPi = std::numbers::pi;

template <class Entity>
Entity& withBody(Entity& entity, const std::string& data)
{
    entity.edit().bodyData = [data] { return data; };
    return entity;
}

struct Measures
{
    double area = -1.0;
    double perimeter = -1.0;
    KdGeVector3d normal;
};

Measures measuresOf(const std::string& data)
{
    KdDbRegion region;
    withBody(region, data);
    Measures result;
    EXPECT_EQ(region.getArea(result.area), eOk);
    EXPECT_EQ(region.getPerimeter(result.perimeter), eOk);
    EXPECT_EQ(region.getNormal(result.normal), eOk);
    return result;
}

KdGeExtents3d extentsOf(const std::string& data)
{
    KdDb3dSolid solid;
    withBody(solid, data);
    KdGeExtents3d box;
    EXPECT_EQ(solid.getGeomExtents(box), eOk);
    return box;
}

void expectBox(const KdGeExtents3d& box, const KdGePoint3d& low, const KdGePoint3d& high)
{
    constexpr double kTolerance = 1e-9;
    EXPECT_LT(box.minPoint.distanceTo(low), kTolerance)
        << box.minPoint.x << ' ' << box.minPoint.y << ' ' << box.minPoint.z;
    EXPECT_LT(box.maxPoint.distanceTo(high), kTolerance)
        << box.maxPoint.x << ' ' << box.maxPoint.y << ' ' << box.maxPoint.z;
}

/// A rectangle of 3 x 2 with a round hole of radius 1/2 in it.
std::string perforated(bool isNewForm)
{
    Writer writer(isNewForm);
    const auto outside = polygon(writer, {{0, 0, 0}, {3, 0, 0}, {3, 2, 0}, {0, 2, 0}});
    const int seam = writer.vertex({2, 1, 0});
    const int circle = writer.circle({1.5, 1, 0}, {0, 0, 1}, {0.5, 0, 0});
    const int hole = writer.edge(seam, seam, circle, true);
    writer.face(body_text::plane(), {outside, {{hole}}});
    return writer.text();
}

/// The same data in the binary form, token by token.
std::string asBinary(const std::string& text)
{
    std::string bytes = "ASM BinaryFile4";
    const auto put = [&bytes](char tag, const auto& value) {
        bytes.push_back(tag);
        bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    };
    const auto putText = [&bytes](char tag, const std::string& word) {
        bytes.push_back(tag);
        bytes.push_back(static_cast<char>(word.size()));
        bytes += word;
    };
    bytes.append(16, '\0');
    for (const char* word : {"Test", "maker", "now"})
        putText(7, word);
    for (const double value : {1.0, 1e-6, 1e-10})
        put(6, value);
    std::istringstream words(text.substr(text.find("body")));
    bool isName = true;
    for (std::string word; words >> word; isName = word == "#") {
        if (isName) {
            for (std::size_t dash; (dash = word.find('-')) != std::string::npos;
                 word.erase(0, dash + 1))
                putText(14, word.substr(0, dash));
            putText(13, word);
        } else if (word == "#") {
            bytes.push_back(17);
        } else if (word.front() == '$') {
            put(12, static_cast<std::int32_t>(std::stoi(word.substr(1))));
        } else if (word.front() == '@') {
            words >> word;
            putText(7, word);
        } else if (word == "-1") { // of those that all records have
            put(4, std::int32_t{-1});
        } else if (std::isdigit(static_cast<unsigned char>(word.back()))) {
            put(6, std::stod(word));
        } else {
            bytes.push_back(word.starts_with("reverse") ? 10 : 11);
        }
    }
    return bytes;
}

class PerforatedRegion : public testing::TestWithParam<std::pair<const char*, std::string>>
{
};

TEST_P(PerforatedRegion, IsMeasuredWithoutItsHole)
{
    const Measures measures = measuresOf(GetParam().second);
    EXPECT_NEAR(measures.area, 6 - kPi / 4, 1e-12);
    EXPECT_NEAR(measures.perimeter, 10 + kPi, 1e-12);
    EXPECT_EQ(measures.normal, (KdGeVector3d{0, 0, 1}));
    expectBox(extentsOf(GetParam().second), {0, 0, 0}, {3, 2, 0});
}

INSTANTIATE_TEST_SUITE_P(EachForm, PerforatedRegion,
                         testing::Values(std::pair{"oldText", perforated(false)},
                                         std::pair{"newText", perforated(true)},
                                         std::pair{"binary", asBinary(perforated(true))}),
                         [](const auto& row) { return row.param.first; });

TEST(Region, FollowsTheSenseOfItsFace)
{
    Writer writer;
    writer.face(body_text::plane(), {polygon(writer, {{0, 0, 0}, {0, 1, 0}, {1, 0, 0}})}, true);
    const Measures measures = measuresOf(writer.text());
    EXPECT_DOUBLE_EQ(measures.area, 0.5);
    EXPECT_DOUBLE_EQ(measures.perimeter, 2 + std::sqrt(2.0));
    EXPECT_EQ(measures.normal, (KdGeVector3d{0, 0, -1}));
}

TEST(Region, AddsUpItsFaces)
{
    Writer writer;
    for (const double x : {0.0, 10.0})
        writer.face(body_text::plane(),
                    {polygon(writer, {{x, 0, 0}, {x + 2, 0, 0}, {x + 2, 1, 0}, {x, 1, 0}})});
    const Measures measures = measuresOf(writer.text());
    EXPECT_DOUBLE_EQ(measures.area, 4);
    EXPECT_DOUBLE_EQ(measures.perimeter, 12);
}

TEST(Region, KeepsItsDigitsFarFromTheOrigin)
{
    Writer writer;
    const double x = 5e6;
    const double y = 4e6;
    writer.face("plane-surface 5000000 4000000 0 0 0 1 1 0 0 forward_v I I I I",
                {polygon(writer, {{x, y, 0}, {x + 0.5, y, 0}, {x + 0.5, y + 0.25, 0}})});
    EXPECT_DOUBLE_EQ(measuresOf(writer.text()).area, 0.0625);
}

TEST(Region, MeasuresArcsOfEllipses)
{
    // the quarter of an ellipse with the axes 3 and 2 from its major axis to its minor one
    Writer writer;
    const int center = writer.vertex({1, 1, 0});
    const int right = writer.vertex({4, 1, 0});
    const int top = writer.vertex({1, 3, 0});
    const int ellipse = writer.circle({1, 1, 0}, {0, 0, 1}, {3, 0, 0}, 2.0 / 3);
    writer.face(body_text::plane(), {{{writer.straightEdge(center, right)},
                                      {writer.edge(right, top, ellipse)},
                                      {writer.straightEdge(center, top), true}}});
    const Measures measures = measuresOf(writer.text());
    EXPECT_NEAR(measures.area, kPi * 3 * 2 / 4, 1e-12);
    // a quarter of the perimeter 15.865439589290590 of that ellipse
    EXPECT_NEAR(measures.perimeter, 5 + 15.865439589290590 / 4, 1e-9);
}

/// The arch y = x (2 - x) as a spline of degree 2 over 0 to 1, above its chord.
std::string arch(const char* curve, bool reversed, const char* first, const char* last)
{
    Writer writer(true);
    const int left = writer.vertex({0, 0, 0});
    const int right = writer.vertex({2, 0, 0});
    const int spline = writer.add("intcurve-curve", curve);
    writer.face(body_text::plane(), {{{writer.straightEdge(left, right)},
                                      {writer.edge(right, left, spline, reversed, first, last)}}});
    return writer.text();
}

struct ArchRow
{
    const char* name;
    const char* curve;
    bool reversed;
    const char* first;
    const char* last;
};

class Arch : public testing::TestWithParam<ArchRow>
{
};

TEST_P(Arch, IsMeasuredAlongItsSpline)
{
    const ArchRow& row = GetParam();
    const std::string data = arch(row.curve, row.reversed, row.first, row.last);
    const Measures measures = measuresOf(data);
    EXPECT_NEAR(measures.area, 4.0 / 3, 1e-9);
    EXPECT_NEAR(measures.perimeter, 2 + std::sqrt(5.0) + std::asinh(2.0) / 2, 1e-9);
    expectBox(extentsOf(data), {0, 0, 0}, {2, 1, 0});
}

INSTANTIATE_TEST_SUITE_P(
    EachWayOfWriting, Arch,
    testing::Values(
        ArchRow{"plain", "forward { exactcur nubs 2 open 2 0 2 1 2 2 0 0 1 2 0 0 0 0 0 } I I",
                false, "0", "1"},
        ArchRow{"rational",
                "forward { exactcur full nurbs 2 open 2 0 2 1 2 2 0 0 1 1 2 0 1 0 0 0 1 0 } I I",
                false, "0", "1"},
        ArchRow{"againstTheCurve",
                "forward { exactcur nubs 2 open 2 0 2 1 2 0 0 0 1 2 0 2 0 0 0 } I I", true, "-1",
                "0"},
        ArchRow{"ofATurnedCurve",
                "reversed { exactcur nubs 2 open 2 0 2 1 2 0 0 0 1 2 0 2 0 0 0 } I I", false, "-1",
                "0"},
        // y = x (2 - x) from -1 to 3, of which the edge takes the middle half
        ArchRow{"partOfALongerCurve",
                "forward { exactcur nubs 2 open 2 0 2 4 2 3 -3 0 1 5 0 -1 -3 0 0 } I I", false, "1",
                "3"}),
    [](const auto& row) { return row.param.name; });

TEST(Arch, MayShareTheSplineOfAnotherRecord)
{
    Writer writer(true);
    const int left = writer.vertex({0, 0, 0});
    const int right = writer.vertex({2, 0, 0});
    writer.add("intcurve-curve",
               "forward { exactcur nubs 2 open 2 0 2 1 2 2 0 0 1 2 0 0 0 0 0 } I I");
    const int same = writer.add("intcurve-curve", "forward { ref 0 } I I");
    writer.face(body_text::plane(),
                {{{writer.straightEdge(left, right)}, {writer.edge(right, left, same)}}});
    EXPECT_NEAR(measuresOf(writer.text()).area, 4.0 / 3, 1e-9);
}

TEST(Solid, IsMovedAsAWhole)
{
    Writer writer;
    writer.straightEdge(writer.vertex({1, 2, 3}), writer.vertex({2, 4, 6}));
    writer.move(2, {10, 20, 30});
    // x goes to y, y to -x; then twice as large
    expectBox(extentsOf(writer.text()), {10 - 8, 20 + 2, 36}, {10 - 4, 20 + 4, 42});
}

TEST(Solid, ReachesAsFarAsItsRoundEdges)
{
    Writer writer;
    const int seam = writer.vertex({3, 0, 5});
    const int circle = writer.circle({0, 0, 5}, {0, 1, 1}, {3, 0, 0});
    writer.edge(seam, seam, circle);
    const double across = 3 / std::sqrt(2.0);
    expectBox(extentsOf(writer.text()), {-3, -across, 5 - across}, {3, across, 5 + across});
}

TEST(Solid, OfAWholeSphereReachesItsRadius)
{
    Writer writer;
    writer.face("sphere-surface 1 2 3 2 1 0 0 0 0 1 forward_v I I I I", {});
    expectBox(extentsOf(writer.text()), {-1, 0, 1}, {3, 4, 5});
}

/// The part of a sphere of radius 2 above a plane.
std::string cap(double height, bool upper)
{
    Writer writer;
    const double radius = std::sqrt(4 - height * height);
    const int seam = writer.vertex({radius, 0, height});
    const int circle = writer.circle({0, 0, height}, {0, 0, 1}, {radius, 0, 0});
    const int rim = writer.edge(seam, seam, circle);
    writer.face("sphere-surface 0 0 0 2 1 0 0 0 0 1 forward_v I I I I", {{{rim, !upper}}});
    return writer.text();
}

TEST(Solid, OfACapReachesFromItsRimToItsPole)
{
    expectBox(extentsOf(cap(0, true)), {-2, -2, 0}, {2, 2, 2});
    const double rim = std::sqrt(3.0);
    expectBox(extentsOf(cap(1, true)), {-rim, -rim, 1}, {rim, rim, 2});
    expectBox(extentsOf(cap(1, false)), {-2, -2, -2}, {2, 2, 1});
}

TEST(Solid, OfAWholeTorusReachesItsTube)
{
    Writer writer;
    writer.face("torus-surface 1 0 0 0 0 1 5 2 1 0 0 forward_v I I I I", {});
    expectBox(extentsOf(writer.text()), {-6, -7, -2}, {8, 7, 2});
}

TEST(Solid, OfATiltedTorusReachesItsTube)
{
    Writer writer;
    writer.face("torus-surface 0 0 0 0 0.6 0.8 5 2 1 0 0 forward_v I I I I", {});
    // the circle of the tube's middle reaches 5, 5 x 0.8 and 5 x 0.6
    expectBox(extentsOf(writer.text()), {-7, -6, -5}, {7, 6, 5});
}

TEST(Solid, OfAPieceOfATorusStaysWithinItsCircles)
{
    // the outer upper quarter of the tube, over the quarter of a turn where x and y are positive
    Writer writer;
    const int a = writer.vertex({7, 0, 0});
    const int b = writer.vertex({0, 7, 0});
    const int c = writer.vertex({0, 5, 2});
    const int d = writer.vertex({5, 0, 2});
    const int outer = writer.edge(a, b, writer.circle({0, 0, 0}, {0, 0, 1}, {7, 0, 0}));
    const int rise = writer.edge(b, c, writer.circle({0, 5, 0}, {1, 0, 0}, {0, 2, 0}));
    const int upper = writer.edge(d, c, writer.circle({0, 0, 2}, {0, 0, 1}, {5, 0, 0}));
    const int fall = writer.edge(a, d, writer.circle({5, 0, 0}, {0, -1, 0}, {2, 0, 0}));
    writer.face("torus-surface 0 0 0 0 0 1 5 2 1 0 0 forward_v I I I I",
                {{{outer}, {rise}, {upper, true}, {fall, true}}});
    expectBox(extentsOf(writer.text()), {0, 0, 0}, {7, 7, 2});
}

TEST(Solid, OfAFreeSurfaceStaysWithinItsControlPoints)
{
    Writer writer(true);
    writer.face("spline-surface forward { exactsur full nubs 1 2 open open none none 2 2 "
                "0 1 1 1 0 2 1 2 0 0 0 4 0 0 0 1 5 4 1 5 0 2 0 4 2 0 }",
                {});
    expectBox(extentsOf(writer.text()), {0, 0, 0}, {4, 2, 5});
}

struct DamageRow
{
    const char* name;
    std::string data;
};

class DamagedBody : public testing::TestWithParam<DamageRow>
{
};

TEST_P(DamagedBody, HasNoMeasures)
{
    KdDbRegion region;
    withBody(region, GetParam().data);
    double value = 7.0;
    KdGeVector3d normal{1, 2, 3};
    KdGeExtents3d box{{1, 2, 3}, {4, 5, 6}};
    EXPECT_EQ(region.getArea(value), eNotApplicable);
    EXPECT_EQ(region.getPerimeter(value), eNotApplicable);
    EXPECT_EQ(region.getNormal(normal), eNotApplicable);
    EXPECT_EQ(region.getGeomExtents(box), eNotApplicable);
    EXPECT_EQ(value, 7.0);
    EXPECT_EQ(normal, (KdGeVector3d{1, 2, 3}));
    EXPECT_EQ(box, (KdGeExtents3d{{1, 2, 3}, {4, 5, 6}}));
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedBody,
    testing::Values(DamageRow{"nothing", ""}, DamageRow{"onlyAHeader", "400 0 1 0\n"},
                    DamageRow{"noise", "\x01\x02\x03 body $$ # { } @99 x"},
                    DamageRow{"binaryMarkAlone", "ASM BinaryFile4"},
                    DamageRow{"binaryNoise", "ASM BinaryFile4" + std::string(99, '\x7F')},
                    DamageRow{"unknownBytes", asBinary("body $-1 #").substr(0, 31)},
                    DamageRow{"textLongerThanTheData",
                              "400 1 1 0\nbody $-1 $-1 $-1 $-1 @4000000000 x #"}),
    [](const auto& row) { return row.param.name; });

TEST(DamagedBody, WithLoopsThatBiteTheirOwnTailsEnds)
{
    Writer writer;
    const int edge = writer.straightEdge(writer.vertex({0, 0, 0}), writer.vertex({1, 0, 0}));
    const int loop = writer.next();
    writer.add("loop", Writer::to(loop) + ' ' + Writer::to(loop + 1) + " $-1");
    for (const int next : {loop + 2, loop + 3, loop + 2})
        writer.add("coedge", Writer::to(next) + " $-1 $-1 " + Writer::to(edge) + " forward $-1");
    const int surface = writer.add("plane-surface", "0 0 0 0 0 1 1 0 0 forward_v");
    writer.add("face", "$-1 " + Writer::to(loop) + " $2 $-1 " + Writer::to(surface) + " forward");
    EXPECT_EQ(measuresOf(writer.text()).perimeter, 3);
}

TEST(DamagedBody, CutOffAnywhereIsReadAsFarAsItGoes)
{
    for (const std::string& whole : {perforated(true), asBinary(perforated(true)),
                                     arch("forward { exactcur nubs 2 open 2 0 2 1 2 2 0 0 1 2 0 0 "
                                          "0 0 0 } I I",
                                          false, "0", "1")}) {
        for (std::size_t size = 0; size < whole.size(); ++size) {
            KdDb3dSolid solid;
            withBody(solid, whole.substr(0, size));
            KdGeExtents3d box;
            if (solid.getGeomExtents(box) == eOk) {
                EXPECT_FALSE(box.isEmpty());
            }
        }
    }
}

TEST(DamagedBody, WithAnAbsurdSplineCountsTheEdgeAsStraight)
{
    for (const char* curve : {"forward { exactcur nubs 3 open 999999999 0 3 1 3 }",
                              "forward { exactcur nubs 99 open 2 0 3 1 3 0 0 0 }",
                              "forward { exactcur nubs 2 open 2 1 2 0 2 0 0 0 1 2 0 2 0 0 }",
                              "forward { ref 77 }", "forward { ref 0 }", "forward"}) {
        const Measures measures = measuresOf(arch(curve, false, "0", "1"));
        EXPECT_NEAR(measures.area, 0, 1e-12) << curve;
        EXPECT_NEAR(measures.perimeter, 4, 1e-12) << curve;
    }
}

TEST(Region, WithARoundFaceHasNoArea)
{
    KdDbRegion region;
    withBody(region, cap(1, true));
    double area = 7.0;
    EXPECT_EQ(region.getArea(area), eNotApplicable);
    EXPECT_EQ(area, 7.0);
}

} // namespace
