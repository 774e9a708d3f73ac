// Multileaders.
#include <array>
#include <cmath>

#include <entities/attribute.h>
#include <entities/mleader.h>
#include <kwdraw/scene/block_placement.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/definition_text.h>
#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

using Branch = MLeaderMembers::Branch;

void drawLine(const KdDbMLeader& leader, const Branch& branch, const MLeaderMembers::Line& line,
              EntityWalk& walk)
{
    std::vector<KdGePoint3d> points = line.vertices;
    points.push_back(branch.lastPoint);
    ScenePath& path = walk.newPath();
    if (leader.leaderLineType() == KdDb::kSplineLeader)
        addCurveThrough(path, points);
    else
        addPolygon(path, points, false);
    walk.writer().stroke(path);
    if (points.size() > 1 && !points[0].isEqualTo(points[1]))
        drawArrowHead(
            walk, leader.arrowSymbolId(),
            {points[0], points[1], KdGeVector3d::kZAxis, leader.arrowSize() * leader.scale()});
}

void drawLines(const KdDbMLeader& leader, EntityWalk& walk)
{
    if (leader.leaderLineType() == KdDb::kInvisibleLeader)
        return;
    walk.setPartColor(leader.leaderLineColor());
    walk.setPartLineweight(leader.leaderLineWeight());
    if (!leader.leaderLineTypeId().isNull())
        walk.setPartLinetype(leader.leaderLineTypeId());
    for (const Branch& branch : leader.branches()) {
        for (const MLeaderMembers::Line& line : branch.lines)
            drawLine(leader, branch, line, walk);
        if (!leader.enableDogleg() || branch.lines.empty())
            continue;
        const KdGePoint3d ends[] = {branch.lastPoint, branch.lastPoint + branch.direction.normal() *
                                                                             branch.landingLength};
        ScenePath& path = walk.newPath();
        addPolygon(path, ends, false);
        walk.writer().stroke(path);
    }
    walk.resetPartLook();
}

/// Around the letters, with the room that the leader keeps to them.
void drawFrame(const KdDbMLeader& leader, const KdDbMText& text, EntityWalk& walk)
{
    KdArray<KdGePoint3d> corners;
    constexpr int kCorners = 4;
    if (text.getBoundingPoints(corners) != eOk || corners.length() < kCorners)
        return;
    const double gap = std::abs(leader.landingGap() * leader.scale());
    const KdGeVector3d right = text.direction() * gap;
    const KdGeVector3d up = text.normal().crossProduct(text.direction()) * gap;
    const std::array<KdGePoint3d, kCorners> around = {
        corners[0] + -right + up, corners[1] + right + up, corners[3] + right + -up,
        corners[2] + -right + -up};
    ScenePath& path = walk.newPath();
    addPolygon(path, around, true);
    walk.writer().stroke(path);
}

void drawText(const KdDbMLeader& leader, EntityWalk& walk)
{
    const std::unique_ptr<KdDbMText> text = leader.mtext();
    if (!text)
        return;
    walk.setPartColor(leader.textColor());
    writeMText(*text, walk.writer());
    walk.resetPartLook();
    if (leader.enableFrameText())
        drawFrame(leader, *text, walk);
}

KdGeMatrix3d frameOf(const MLeaderMembers::Block& block)
{
    const KdGeMatrix3d plane = KdGeMatrix3d::planeToWorld(block.normal);
    const double c = std::cos(block.rotation);
    const double s = std::sin(block.rotation);
    return KdGeMatrix3d::fromFrame(block.position,
                                   plane * (KdGeVector3d{c, s, 0.0} * block.scale.sx),
                                   plane * (KdGeVector3d{-s, c, 0.0} * block.scale.sy),
                                   plane * (KdGeVector3d::kZAxis * block.scale.sz));
}

void drawAttributes(const MLeaderMembers::Block& block, const KdGeMatrix3d& frame, EntityWalk& walk)
{
    const OpenForRead<KdDbBlockTableRecord> record(block.record);
    if (!record)
        return;
    SceneWriter& writer = walk.writer();
    const KdGeMatrix3d outside = writer.frame();
    writer.setFrame(outside * frame * shiftBy(-record->origin().asVector()));
    for (const MLeaderMembers::BlockAttribute& attribute : block.attributes) {
        if (!attribute.definition.isKindOf(KdDbAttributeDefinition::desc()))
            continue;
        const OpenForRead<KdDbAttributeDefinition> definition(attribute.definition);
        if (definition)
            writeText(*textLike(*definition, attribute.text), writer);
    }
    writer.setFrame(outside);
}

void drawMLeader(const KdDbMLeader& leader, EntityWalk& walk)
{
    drawLines(leader, walk);
    const MLeaderMembers::Block* block = leader.blockContent();
    if (leader.contentType() == KdDb::kMTextContent) {
        drawText(leader, walk);
    } else if (leader.contentType() == KdDb::kBlockContent && block &&
               block->record.isKindOf(KdDbBlockTableRecord::desc())) {
        walk.setPartColor(KdCmColor(block->color));
        drawBlockAt(walk, block->record, frameOf(*block));
        drawAttributes(*block, frameOf(*block), walk);
    }
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbMLeader, drawMLeader>(),
};

} // namespace

std::span<const ShapeRow> mleaderShapes()
{
    return kRows;
}
