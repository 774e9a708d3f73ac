// What the tests of texts have in common.
#pragma once

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/tables.h>
#include <kwdraw/texts/font_metrics.h>
#include <kwdraw/texts/text_look.h>
#include <kwdraw/texts/text_shapes.h>

namespace text_test {

inline constexpr double kNear = 1e-6;

/// A text in the scene, with its places in the plane.
struct Shown
{
    QString letters;
    QPointF start; ///< of the base line
    QPointF end;
    QPointF top; ///< over the start: where a capital letter ends
    SceneLook look;
    SceneFont font;

    double height() const;
};

struct Stroke
{
    std::vector<QPointF> points;
    SceneLook look;
};

/// Takes what one text draws.
class Paper
{
  public:
    Paper();
    /// All texts and strokes so far.
    std::vector<Shown> texts() const;
    std::vector<Stroke> strokes(SceneShape::Kind kind = SceneShape::Kind::Stroke) const;
    /// The letters of all texts, parted by bars.
    QString letters() const;

    Scene scene;
    SceneWriter writer;
};

/// The room that letters take in the plain face, capital letters 1 high.
double plainWidth(const QString& letters);

MATCHER_P2(IsAt, x, y, "")
{
    *result_listener << "(" << arg.x() << ", " << arg.y() << ")";
    return std::abs(arg.x() - x) < kNear && std::abs(arg.y() - y) < kNear;
}

} // namespace text_test

void PrintTo(const QString& text, std::ostream* stream);
