#include <kwdraw/scene/definition_text.h>

#include <geometry/matrix.h>

std::unique_ptr<KdDbText> textLike(const KdDbAttributeDefinition& definition, const KdString& text)
{
    auto result = std::make_unique<KdDbText>();
    result->setPropertiesFrom(definition);
    TextMembers& members = result->edit();
    const KdGeMatrix3d toPlane = KdGeMatrix3d::worldToPlane(definition.normal());
    members.position = toPlane * definition.position();
    members.alignmentPoint = toPlane * definition.alignmentPoint();
    members.height = definition.height();
    members.rotation = definition.rotation();
    members.oblique = definition.oblique();
    members.widthFactor = definition.widthFactor();
    members.extrusion.setDirection(definition.normal());
    members.extrusion.setThickness(definition.thickness());
    members.text = text;
    members.style = definition.textStyle();
    members.horizontalMode = definition.horizontalMode();
    members.verticalMode = definition.verticalMode();
    members.mirroredInX = definition.isMirroredInX();
    members.mirroredInY = definition.isMirroredInY();
    return result;
}
