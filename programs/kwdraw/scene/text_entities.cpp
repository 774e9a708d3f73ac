// Texts, attributes and tolerances.
#include <entities/attribute.h>
#include <entities/fcf.h>
#include <entities/special_text.h>
#include <kwdraw/scene/definition_text.h>
#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

void drawText(const KdDbText& text, EntityWalk& walk)
{
    writeText(text, walk.writer());
}

void drawMText(const KdDbMText& text, EntityWalk& walk)
{
    writeMText(text, walk.writer());
}

void drawArcText(const KdDbArcAlignedText& text, EntityWalk& walk)
{
    writeArcText(text, walk.writer());
}

void drawRText(const KdDbRText& text, EntityWalk& walk)
{
    writeRText(text, walk.writer());
}

void drawTolerance(const KdDbFcf& tolerance, EntityWalk& walk)
{
    writeFcf(tolerance, walk.writer());
}

void drawAttribute(const KdDbAttribute& attribute, EntityWalk& walk)
{
    constexpr int kNone = 0;
    constexpr int kAll = 2;
    const int mode = walk.settings().attributeMode;
    if (mode == kNone || (attribute.isInvisible() && mode != kAll))
        return;
    if (const KdDbMText* lines = attribute.getMTextAttributeConst())
        writeMText(*lines, walk.writer());
    else
        writeText(attribute, walk.writer());
}

/// In its own block a definition shows its tag; seen through a reference it is hidden, as there the
/// attribute stands in its place, unless it is constant.
void drawDefinition(const KdDbAttributeDefinition& definition, EntityWalk& walk)
{
    if (walk.isInSpace())
        writeText(*textLike(definition,
                            definition.isConstant() ? definition.textString() : definition.tag()),
                  walk.writer());
    else if (definition.isConstant() && !definition.isInvisible())
        writeText(definition, walk.writer());
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbArcAlignedText, drawArcText>(),
    shapeRow<KdDbAttribute, drawAttribute>(),
    shapeRow<KdDbAttributeDefinition, drawDefinition>(),
    shapeRow<KdDbFcf, drawTolerance>(),
    shapeRow<KdDbMText, drawMText>(),
    shapeRow<KdDbRText, drawRText>(),
    shapeRow<KdDbText, drawText>(),
};

} // namespace

std::span<const ShapeRow> textShapes()
{
    return kRows;
}
