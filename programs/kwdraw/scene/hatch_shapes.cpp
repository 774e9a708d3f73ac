// Hatches and filled polygons.
#include <algorithm>
#include <numeric>

#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/scene/hatch_gradients.h>
#include <kwdraw/scene/hatch_paths.h>

namespace {

/// A hatch with more lines is grey on any screen.
constexpr std::size_t kMostLines = 50000;

using Areas = std::vector<std::vector<std::size_t>>;

Areas areasOf(const HatchContent& hatch)
{
    if (hatch.loops.size() == 1) // nothing to be found out about what lies inside what
        return {{0}};
    return kddbFilledLoops(hatch);
}

template <class Fill>
void fillAreas(const HatchContent& hatch, EntityWalk& walk, Fill fill)
{
    const FlatFrame frame(hatch.extrusion.normal(), hatch.elevation);
    for (const std::vector<std::size_t>& area : areasOf(hatch)) {
        ScenePath& path = walk.newPath();
        for (const std::size_t loop : area)
            addHatchLoop(path, frame, hatch.loops[loop]);
        fill(path);
    }
}

void fillPlain(const HatchContent& hatch, EntityWalk& walk)
{
    fillAreas(hatch, walk, [&](const ScenePath& path) { walk.writer().fill(path); });
}

QRgb colorOf(const KdCmColor& color, EntityWalk& walk)
{
    SceneLook look = walk.entityLook();
    walk.looks().setColor(look, color, walk.entityLayer(), walk.entityLook());
    return look.color;
}

void fillGradient(const HatchContent& hatch, EntityWalk& walk)
{
    const QRgb first = colorOf(hatch.gradientColors.front(), walk);
    const QRgb second = hatch.oneColorGradient
                            ? tinted(first, static_cast<double>(hatch.gradientTint))
                            : colorOf(hatch.gradientColors.back(), walk);
    const HatchGradient gradient = gradientOf(hatch, first, second);
    fillAreas(hatch, walk, [&](const ScenePath& path) {
        walk.writer().fill(path, gradient.colors, gradient.placement);
    });
}

/// What a pattern looks like from far away.
void fillAsFog(const HatchContent& hatch, EntityWalk& walk)
{
    SceneLook look = walk.entityLook();
    constexpr int kPartThatCovers = 3;
    look.color = qRgba(qRed(look.color), qGreen(look.color), qBlue(look.color),
                       qAlpha(look.color) / kPartThatCovers);
    walk.setPartLook(look);
    fillPlain(hatch, walk);
    walk.resetPartLook();
}

void drawPattern(const HatchContent& hatch, EntityWalk& walk)
{
    std::vector<HatchLineEdge> lines;
    const std::size_t most = std::min(kMostLines, walk.pointsLeft() / 2);
    const KdErrorStatus status = kddbPatternLines(hatch, most, lines);
    if (status == eOutOfRange)
        return fillAsFog(hatch, walk);
    SceneLook look = walk.entityLook(); // the dashes are the pattern's own
    look.linetype = -1;
    look.linetypeScale = 1.0;
    walk.setPartLook(look);
    const FlatFrame frame(hatch.extrusion.normal(), hatch.elevation);
    ScenePath& path = walk.newPath();
    for (const HatchLineEdge& line : lines) {
        path.moveTo(frame(line.start));
        path.lineTo(frame(line.end));
    }
    walk.writer().stroke(path);
}

/// A colour below the pattern stands in extended data as the word of a colour.
void fillBackground(const KdDbEntity& entity, const HatchContent& hatch, EntityWalk& walk)
{
    constexpr short kLong = 1071;
    const resbuf* end = nullptr;
    const resbuf* record = entity.extendedData(L"HATCHBACKGROUNDCOLOR", end);
    while (record && record != end && record->restype != kLong)
        record = record->rbnext;
    if (!record || record == end)
        return;
    const KdCmColor color(static_cast<std::uint32_t>(record->resval.rlong));
    if (color.colorMethod() == KdCmColor::kNone)
        return;
    walk.setPartColor(color);
    fillPlain(hatch, walk);
    walk.resetPartLook();
}

void drawContent(const KdDbEntity& entity, const HatchContent& hatch, EntityWalk& walk)
{
    if (!walk.settings().fillsAreas || hatch.loops.empty())
        return;
    if (hatch.gradient && !hatch.gradientColors.empty())
        return fillGradient(hatch, walk);
    if (hatch.solid || hatch.gradient)
        return fillPlain(hatch, walk);
    fillBackground(entity, hatch, walk);
    drawPattern(hatch, walk);
}

void drawHatch(const KdDbHatch& hatch, EntityWalk& walk)
{
    drawContent(hatch, hatch.content(), walk);
}

void drawMPolygon(const KdDbMPolygon& polygon, EntityWalk& walk)
{
    const HatchContent& content = polygon.content();
    drawContent(polygon, content, walk);
    walk.resetPartLook();
    const FlatFrame frame(content.extrusion.normal(), content.elevation);
    ScenePath& path = walk.newPath();
    for (const HatchLoop& loop : content.loops)
        addHatchLoop(path, frame, loop);
    walk.writer().stroke(path);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbHatch, drawHatch>(),
    shapeRow<KdDbMPolygon, drawMPolygon>(),
};

} // namespace

std::span<const ShapeRow> hatchShapes()
{
    return kRows;
}
