// What drawings look like, against pictures that a person has looked at. With KW_WRITE_REFERENCES
// in the environment the pictures are written anew.
#include "support.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

using namespace kwdraw_test;

namespace {

struct Reference
{
    const char* name;
    const char* drawing; ///< in the tree
    const char* layout;  ///< empty: the model
};

constexpr QSize kSize(480, 360);
/// Edges of letters and lines may fall a little differently from one machine to another.
constexpr int kLargestDifference = 40;
constexpr double kLargestPart = 0.004;

/// Averages over neighbours, so that a line that moves by part of a pixel counts little.
QImage softened(const QImage& picture)
{
    const QImage small =
        picture.scaled(picture.size() / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return small.convertToFormat(QImage::Format_RGB32);
}

int difference(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

/// The part of the pixels that differ, 0 to 1.
double differingPart(const QImage& one, const QImage& other)
{
    int differing = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            differing += difference(one.pixel(x, y), other.pixel(x, y)) > kLargestDifference;
    return static_cast<double>(differing) / (one.width() * one.height());
}

class ReferencePicture : public WindowTest, public testing::WithParamInterface<Reference>
{
  protected:
    QImage picture()
    {
        open(QString(KW_SOURCE_DIR) + '/' + GetParam().drawing, GetParam().layout);
        EXPECT_TRUE(window->document().isOpen());
        DrawingView lone;
        lone.resize(kSize);
        lone.show();
        lone.setScene(view().scene());
        lone.zoomToExtents();
        return lone.renderedPicture().convertToFormat(QImage::Format_RGB32);
    }
    static QString referencePath()
    {
        return QString(KW_SOURCE_DIR) + "/tests/kwdraw/references/" + GetParam().name + ".png";
    }
};

TEST_P(ReferencePicture, IsWhatTheDrawingLooksLike)
{
    const QImage drawn = picture();
    ASSERT_EQ(drawn.size(), kSize);
    if (std::getenv("KW_WRITE_REFERENCES")) {
        ASSERT_TRUE(drawn.save(referencePath()));
    }
    const QImage reference(referencePath());
    ASSERT_EQ(reference.size(), kSize) << referencePath().toStdString();
    EXPECT_LE(differingPart(softened(drawn), softened(reference)), kLargestPart);
}

constexpr Reference kReferences[] = {
    {"floorPlan", "examples/floor_plan.dxf", ""},
    {"floorPlanSheet", "examples/floor_plan.dxf", "Sheet"},
    {"basicKinds", "examples/all_basic_kinds_r2010.dxf", ""},
    {"oldDrawing", "examples/minimal_r12.dxf", ""},
    {"leader", "fuzz/corpus/dxf/leader", ""},
    {"mesh", "fuzz/corpus/dxf/mesh", ""},
    {"multileader", "fuzz/corpus/dxf/multileader", ""},
    {"paragraphs", "fuzz/corpus/dxf/mtext", ""},
    {"pattern", "fuzz/corpus/dxf/hatch_pattern", ""},
    {"reference", "fuzz/corpus/dxf/insert", ""},
    {"spline", "fuzz/corpus/dxf/spline", ""},
    {"tolerance", "fuzz/corpus/dxf/tolerance", ""},
    {"widePolyline", "fuzz/corpus/dxf/lwpolyline", ""},
};
INSTANTIATE_TEST_SUITE_P(Drawings, ReferencePicture, testing::ValuesIn(kReferences),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ReferencePictures, DifferWhereALineIsMissing)
{
    QImage one(kSize, QImage::Format_RGB32);
    one.fill(Qt::black);
    QImage other = one;
    QPainter painter(&other);
    painter.setPen(Qt::white);
    painter.drawLine(20, 30, 400, 300);
    painter.end();
    EXPECT_EQ(differingPart(softened(one), softened(one)), 0.0);
    EXPECT_GT(differingPart(softened(one), softened(other)), kLargestPart);
}

} // namespace
