// What is at a place or in a box, on scenes made by hand.
#include <kwdraw/view/pick.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "scene_maker.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Items = std::vector<std::uint32_t>;

constexpr double kAperture = 5.0;
constexpr double kDiagonal = 0.7071067811865476;

/// Seen at one unit a pixel in a view of 300 pixels.
PickView usualView()
{
    return {1.0, 300.0, {}};
}

std::optional<std::uint32_t> pickAt(SceneMaker& maker, QPointF place,
                                    const PickView& view = usualView())
{
    return itemAt(SceneIndex(maker.finish()), place, kAperture, view);
}

Items window(SceneMaker& maker, const SceneBox& box, const PickView& view = usualView())
{
    return itemsIn(SceneIndex(maker.finish()), box, BoxRule::Window, view);
}

Items crossing(SceneMaker& maker, const SceneBox& box, const PickView& view = usualView())
{
    return itemsIn(SceneIndex(maker.finish()), box, BoxRule::Crossing, view);
}

QPolygonF square(double left, double bottom, double side)
{
    return QPolygonF({{left, bottom},
                      {left + side, bottom},
                      {left + side, bottom + side},
                      {left, bottom + side}});
}

} // namespace

TEST(Pick, FindsALineWithinTheAperture)
{
    SceneMaker maker;
    maker.line({0, 0}, {100, 0});
    const SceneIndex index(maker.finish());
    EXPECT_EQ(itemAt(index, {50, 4.99}, kAperture, usualView()), 0u);
    EXPECT_EQ(itemAt(index, {50, 5.01}, kAperture, usualView()), std::nullopt);
    EXPECT_EQ(itemAt(index, {104.99, 0}, kAperture, usualView()), 0u);
    EXPECT_EQ(itemAt(index, {104, 4}, kAperture, usualView()), std::nullopt); // 5.66 from the end
}

TEST(Pick, MeasuresTheApertureInPixels)
{
    SceneMaker maker;
    maker.line({0, 0}, {100, 0});
    const SceneIndex index(maker.finish());
    EXPECT_EQ(itemAt(index, {50, 0.49}, kAperture, {0.1, 300.0, {}}), 0u);
    EXPECT_EQ(itemAt(index, {50, 0.51}, kAperture, {0.1, 300.0, {}}), std::nullopt);
}

TEST(Pick, FindsACurveWhereItRuns)
{
    SceneMaker maker;
    maker.circle({0, 0}, 100);
    const SceneIndex index(maker.finish());
    const QPointF onCurve(100 * kDiagonal, 100 * kDiagonal);
    EXPECT_EQ(itemAt(index, onCurve * 1.049, kAperture, usualView()), 0u);
    EXPECT_EQ(itemAt(index, onCurve * 1.053, kAperture, usualView()), std::nullopt);
    EXPECT_EQ(itemAt(index, onCurve * 0.951, kAperture, usualView()), 0u);
    EXPECT_EQ(itemAt(index, {0, 0}, kAperture, usualView()), std::nullopt);
}

TEST(Pick, TakesTheNearestLine)
{
    SceneMaker maker;
    maker.item();
    maker.line({0, 0}, {100, 0});
    maker.item();
    maker.line({0, 4}, {100, 4});
    EXPECT_EQ(pickAt(maker, {50, 1.5}), 0u);
    EXPECT_EQ(pickAt(maker, {50, 2.5}), 1u);
}

TEST(Pick, TakesTheLastPaintedOfEquallyNearOnes)
{
    SceneMaker maker;
    for (int i = 0; i < 3; ++i) {
        maker.item();
        maker.line({0, 0}, {100, 0});
    }
    EXPECT_EQ(pickAt(maker, {50, 3}), 2u);
}

TEST(Pick, FindsAnAreaInItsInside)
{
    SceneMaker maker;
    maker.fill({square(0, 0, 100), square(40, 40, 20)}); // with a hole
    EXPECT_EQ(pickAt(maker, {20, 20}), 0u);
    EXPECT_EQ(pickAt(maker, {50, 50}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {43, 50}), 0u); // near the edge of the hole
    EXPECT_EQ(pickAt(maker, {120, 50}), std::nullopt);
}

TEST(Pick, PrefersALineToTheAreaAroundIt)
{
    SceneMaker maker;
    maker.item();
    maker.line({0, 50}, {100, 50});
    maker.item();
    maker.fill(square(0, 0, 100));
    EXPECT_EQ(pickAt(maker, {50, 53}), 0u);
    EXPECT_EQ(pickAt(maker, {50, 60}), 1u);
}

TEST(Pick, FindsGradientsAndImagesInTheirInside)
{
    SceneMaker gradient;
    gradient.gradient(square(0, 0, 100), {});
    EXPECT_EQ(pickAt(gradient, {50, 50}), 0u);
    SceneMaker image;
    image.image({}, {0, 0}, 100, 50);
    EXPECT_EQ(pickAt(image, {50, 25}), 0u);
    EXPECT_EQ(pickAt(image, {50, 75}), std::nullopt);
}

TEST(Pick, FindsAWipeoutAtItsEdgeAlone)
{
    SceneMaker maker;
    maker.wipeout(square(0, 0, 100) << QPointF(0, 0));
    EXPECT_EQ(pickAt(maker, {50, 50}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {50, 98}), 0u);
}

TEST(Pick, FindsATextBetweenItsLetters)
{
    SceneMaker maker;
    maker.text("HHHHHHHHHH", {0, 0}, 20, 90.0); // 8.5 * 20 long, upwards, letters to the left
    EXPECT_EQ(pickAt(maker, {-10, 85}), 0u);
    EXPECT_EQ(pickAt(maker, {-10, 169}), 0u);
    EXPECT_EQ(pickAt(maker, {-10, 176}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {-26, 85}), std::nullopt);
}

TEST(Pick, FindsARayFarFromItsBaseAndNotBehindIt)
{
    SceneMaker maker;
    maker.ray({0, 0}, {1, 1});
    EXPECT_EQ(pickAt(maker, {1e6, 1e6 + 6.9}), 0u); // 4.9 away
    EXPECT_EQ(pickAt(maker, {1e6, 1e6 + 7.2}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {-100, -100}), std::nullopt);
    SceneMaker both;
    both.ray({0, 0}, {1, 1}, true);
    EXPECT_EQ(pickAt(both, {-1e6, -1e6}), 0u);
}

TEST(Pick, FindsAMarkerByWhatIsDrawn)
{
    SceneMaker plus;
    plus.marker({0, 0}, 2, 10.0); // arms of 10 units to each side
    EXPECT_EQ(pickAt(plus, {12, 0}), 0u);
    EXPECT_EQ(pickAt(plus, {16, 0}), std::nullopt);
    SceneMaker ofView;
    ofView.marker({0, 0}, 2, 0.0); // 5 percent of 300 pixels
    EXPECT_EQ(pickAt(ofView, {19, 0}), 0u);
    EXPECT_EQ(pickAt(ofView, {21, 0}), std::nullopt);
    SceneMaker dot;
    dot.marker({0, 0}, 0, 10.0);
    EXPECT_EQ(pickAt(dot, {4, 0}), 0u);
    SceneMaker nothing;
    nothing.marker({0, 0}, 1, 10.0);
    EXPECT_EQ(pickAt(nothing, {0, 0}), std::nullopt);
}

TEST(Pick, PassesOverLayersThatAreNotSeen)
{
    SceneMaker maker;
    const auto off = maker.addLayer(false);
    const auto frozen = maker.addLayer(true, true);
    maker.onLayer(off);
    maker.item(off);
    maker.line({0, 0}, {100, 0});
    maker.item(frozen);
    maker.onLayer(0); // a block's contents on a layer that is on
    maker.line({0, 10}, {100, 10});
    maker.item(off);
    maker.line({0, 20}, {100, 20});
    EXPECT_EQ(pickAt(maker, {50, 0}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {50, 10}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {50, 20}), 2u); // off hides shapes on the layer, frozen all of the item
}

TEST(Pick, GoesByTheLayersOfTheView)
{
    SceneMaker maker;
    const auto layer = maker.addLayer(false);
    maker.onLayer(layer);
    maker.line({0, 0}, {100, 0});
    const std::vector<LayerState> shown{{true, false}, {true, false}};
    const std::vector<LayerState> frozen{{true, false}, {true, true}};
    EXPECT_EQ(pickAt(maker, {50, 0}), std::nullopt);
    EXPECT_EQ(pickAt(maker, {50, 0}, {1.0, 300.0, shown}), 0u);
    EXPECT_EQ(pickAt(maker, {50, 0}, {1.0, 300.0, frozen}), std::nullopt);
}

TEST(Pick, FindsWhatIsOnALockedLayer)
{
    SceneMaker maker;
    maker.scene().layers[0].locked = true;
    maker.line({0, 0}, {100, 0});
    EXPECT_EQ(pickAt(maker, {50, 0}), 0u);
}

TEST(Pick, KeepsItsExactnessFarFromTheOrigin)
{
    SceneMaker maker;
    maker.line({1e12, 1e12}, {1e12 + 100, 1e12});
    const SceneIndex index(maker.finish());
    EXPECT_EQ(itemAt(index, {1e12 + 50, 1e12 + 4.9}, kAperture, usualView()), 0u);
    EXPECT_EQ(itemAt(index, {1e12 + 50, 1e12 + 5.1}, kAperture, usualView()), std::nullopt);
}

TEST(Pick, FindsAPointOfACircleThatIsAMillionPixelsLarge)
{
    SceneMaker maker;
    maker.circle({0, 0}, 1.0);
    const double units = 1e-6;
    const SceneIndex index(maker.finish());
    const QPointF onCurve(kDiagonal, kDiagonal);
    // Where a quarter is halved, the usual four curves lie on the circle but for 1e-12.
    EXPECT_EQ(itemAt(index, onCurve * (1.0 + 4.9 * units), kAperture, {units, 300.0, {}}), 0u);
    EXPECT_EQ(itemAt(index, onCurve * (1.0 + 5.2 * units), kAperture, {units, 300.0, {}}),
              std::nullopt);
}

TEST(Pick, SurvivesCoordinatesThatAreNoNumbers)
{
    SceneMaker maker;
    maker.item();
    maker.line({std::nan(""), 0}, {100, std::nan("")});
    maker.item();
    maker.line({0, 0}, {1e308, 1e308});
    maker.item();
    maker.line({0, 10}, {100, 10});
    EXPECT_EQ(pickAt(maker, {50, 10}), 2u);
    EXPECT_THAT(crossing(maker, {40, 5, 45, 15}), ElementsAre(2));
}

TEST(BoxPick, TakesWholeItemsInAWindow)
{
    SceneMaker maker;
    maker.item();
    maker.line({0, 0}, {10, 10});
    maker.line({20, 20}, {30, 30});
    maker.item();
    maker.line({0, 0}, {20, 20});
    const SceneBox small{-1, -1, 25, 25};
    EXPECT_THAT(window(maker, small), ElementsAre(1));
    EXPECT_THAT(crossing(maker, small), ElementsAre(0, 1));
    EXPECT_THAT(window(maker, {-1, -1, 30, 30}), ElementsAre(0, 1)); // the edge belongs to it
}

TEST(BoxPick, CountsWhatIsSeenOfAnItem)
{
    SceneMaker maker;
    const auto off = maker.addLayer(false);
    maker.item();
    maker.line({0, 0}, {10, 10});
    maker.onLayer(off);
    maker.line({20, 20}, {90, 90});
    EXPECT_THAT(window(maker, {-1, -1, 15, 15}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {40, 40, 60, 60}), IsEmpty());
    EXPECT_THAT(window(maker, {15, 15, 95, 95}), IsEmpty());
}

TEST(BoxPick, TouchesALineThatPassesThrough)
{
    SceneMaker maker;
    maker.line({-100, 0}, {100, 0});
    EXPECT_THAT(crossing(maker, {-1, -1, 1, 1}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {-1, 0, 1, 1}), ElementsAre(0)); // along the edge
    EXPECT_THAT(crossing(maker, {-1, 0.01, 1, 1}), IsEmpty());
}

TEST(BoxPick, PassesOverALineWhoseBoxAloneIsMet)
{
    SceneMaker maker;
    maker.line({0, 0}, {100, 100});
    EXPECT_THAT(crossing(maker, {60, 10, 90, 40}), IsEmpty());
}

TEST(BoxPick, TouchesAnArcThatBulgesIntoTheBox)
{
    SceneMaker maker;
    maker.quarter({0, 0}, 100); // passes (70.7, 70.7); its ends are outside
    EXPECT_THAT(crossing(maker, {70, 70, 80, 80}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {71.2, 71.2, 80, 80}), IsEmpty());
    EXPECT_THAT(crossing(maker, {10, 10, 69, 69}), IsEmpty()); // within the chord and the curve
}

TEST(BoxPick, HoldsACurveThatItsControlPointsLeave)
{
    SceneMaker maker;
    maker.circle({0, 0}, 100);
    EXPECT_THAT(window(maker, {-100.5, -100.5, 100.5, 100.5}), ElementsAre(0));
    EXPECT_THAT(window(maker, {-99, -100.5, 100.5, 100.5}), IsEmpty());
    SceneMaker loose; // whoever makes a scene may box a curve by its control points
    loose.quarter({0, 0}, 100);
    loose.scene().shapes[0].box = {-5, -5, 120, 120};
    EXPECT_THAT(window(loose, {-1, -1, 101, 101}), ElementsAre(0));
}

TEST(BoxPick, TouchesAnAreaThatHoldsTheBox)
{
    SceneMaker maker;
    maker.fill({square(0, 0, 100), square(40, 40, 20)});
    EXPECT_THAT(crossing(maker, {10, 10, 20, 20}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {45, 45, 55, 55}), IsEmpty()); // in the hole
    EXPECT_THAT(window(maker, {10, 10, 20, 20}), IsEmpty());
}

TEST(BoxPick, DoesNotTouchAStrokeThatRunsAroundTheBox)
{
    SceneMaker maker;
    maker.polyline(square(0, 0, 100) << QPointF(0, 0));
    EXPECT_THAT(crossing(maker, {10, 10, 20, 20}), IsEmpty());
}

TEST(BoxPick, TreatsATextAsItsFrame)
{
    SceneMaker maker;
    maker.text("HHHHHHHHHH", {0, 0}, 10, 45.0); // 85 long
    EXPECT_THAT(crossing(maker, {29, 31, 31, 33}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {40, 5, 60, 20}), IsEmpty()); // in its box, not in its frame
    EXPECT_THAT(window(maker, {-8, -8, 70, 70}), ElementsAre(0));
    EXPECT_THAT(window(maker, {-8, -8, 50, 70}), IsEmpty());
}

TEST(BoxPick, TouchesRaysAndNeverHoldsThem)
{
    SceneMaker maker;
    maker.ray({0, 0}, {1, 0});
    EXPECT_THAT(crossing(maker, {1e6, -1, 1e6 + 2, 1}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {-10, -1, -5, 1}), IsEmpty());
    EXPECT_THAT(window(maker, {-1e9, -1e9, 1e9, 1e9}), IsEmpty());
}

TEST(BoxPick, GoesByThePlaceOfAMarker)
{
    SceneMaker maker;
    maker.marker({50, 50}, 2, 20.0);
    EXPECT_THAT(window(maker, {49, 49, 51, 51}), ElementsAre(0));
    EXPECT_THAT(crossing(maker, {60, 49, 62, 51}), ElementsAre(0)); // an arm of it
    EXPECT_THAT(window(maker, {60, 49, 62, 51}), IsEmpty());
}

TEST(BoxPick, FindsTheSameAsALookAtEachOfManyLines)
{
    SceneMaker maker;
    std::vector<QLineF> lines;
    std::uint32_t random = 12345;
    const auto next = [&random](double range) {
        random = random * 1664525u + 1013904223u;
        return (random >> 8) * range / 16777216.0;
    };
    for (int i = 0; i < 3000; ++i) {
        const QPointF start(next(1000), next(1000));
        lines.emplace_back(start, start + QPointF(next(60) - 30, next(60) - 30));
        maker.item();
        maker.line(lines.back().p1(), lines.back().p2());
    }
    const SceneIndex index(maker.finish());
    const SceneBox box{300, 420, 520, 610};
    const QRectF rectangle(QPointF(box.left, box.bottom), QPointF(box.right, box.top));
    Items inside;
    Items touched;
    for (std::uint32_t i = 0; i < lines.size(); ++i) {
        const bool held = rectangle.contains(lines[i].p1()) && rectangle.contains(lines[i].p2());
        bool crossed =
            held || rectangle.contains(lines[i].p1()) || rectangle.contains(lines[i].p2());
        const QPointF corners[] = {rectangle.topLeft(), rectangle.topRight(),
                                   rectangle.bottomRight(), rectangle.bottomLeft()};
        for (int side = 0; side < 4; ++side)
            crossed = crossed || lines[i].intersects({corners[side], corners[(side + 1) % 4]},
                                                     nullptr) == QLineF::BoundedIntersection;
        if (held)
            inside.push_back(i);
        if (crossed)
            touched.push_back(i);
    }
    EXPECT_GT(touched.size(), inside.size());
    EXPECT_EQ(itemsIn(index, box, BoxRule::Window, usualView()), inside);
    EXPECT_EQ(itemsIn(index, box, BoxRule::Crossing, usualView()), touched);
}

TEST(BoxPick, FindsNothingInAnEmptyScene)
{
    SceneMaker maker;
    EXPECT_THAT(window(maker, {-1, -1, 1, 1}), IsEmpty());
    EXPECT_EQ(pickAt(maker, {0, 0}), std::nullopt);
    maker.item(); // an item with nothing to see
    EXPECT_THAT(crossing(maker, {-1, -1, 1, 1}), IsEmpty());
}
