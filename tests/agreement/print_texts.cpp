// Prints the texts, shapes, tolerance frames and leaders of a drawing as JSON, a line for each, to
// be compared with what another reader finds.
#include <cstdio>

#include <nlohmann/json.hpp>

#include <entities/all.h>
#include <runtime/utf8.h>

#include "print_drawing.h"

namespace {

using nlohmann::json;

std::string utf8(const KdString& text)
{
    return kdToUtf8(text.view());
}

json point(const KdGePoint3d& p)
{
    return {p.x, p.y, p.z};
}

json vector(const KdGeVector3d& v)
{
    return {v.x, v.y, v.z};
}

json describe(const KdDbMText& text)
{
    KdString contents;
    text.contents(contents);
    return {{"contents", utf8(contents)},
            {"plain", utf8(text.text())},
            {"location", point(text.location())},
            {"normal", vector(text.normal())},
            {"rotation", text.rotation()},
            {"textHeight", text.textHeight()},
            {"width", text.width()},
            {"height", text.height()},
            {"attachment", text.attachment()},
            {"flow", text.flowDirection()},
            {"spacing", text.lineSpacingFactor()},
            {"spacingStyle", text.lineSpacingStyle()},
            {"fill", text.backgroundFillOn()},
            {"style", utf8(recordName(text.textStyle()))},
            {"columns", text.columnType() == KdDb::kNoColumns ? 0 : text.columnCount()}};
}

json describe(const KdDbText& text)
{
    return {{"text", utf8(text.textString())},
            {"position", point(text.position())},
            {"alignmentPoint", point(text.alignmentPoint())},
            {"height", text.height()},
            {"rotation", text.rotation()},
            {"oblique", text.oblique()},
            {"widthFactor", text.widthFactor()},
            {"horizontal", text.horizontalMode()},
            {"vertical", text.verticalMode()},
            {"style", utf8(recordName(text.textStyle()))},
            {"backward", text.isMirroredInX()},
            {"upsideDown", text.isMirroredInY()}};
}

void addAttribute(const KdDbAttributeText& text, const KdDbMText* lines, json& row)
{
    row["tag"] = utf8(text.tag());
    row["modes"] = {text.isInvisible(), text.isConstant(), text.isVerifiable(), text.isPreset()};
    if (lines)
        row["lines"] = describe(*lines);
}

json describe(const KdDbLeader& leader)
{
    json vertices = json::array();
    for (int i = 0; i < leader.numVertices(); ++i)
        vertices.push_back(point(leader.vertexAt(i)));
    return {{"vertices", vertices},
            {"arrow", leader.hasArrowHead()},
            {"splined", leader.isSplined()},
            {"annotation", leader.annotationObjId().handle()},
            {"dimensionStyle", utf8(recordName(leader.dimensionStyle()))}};
}

json describe(const KdDbMLeader& leader)
{
    json lines = json::array();
    for (const auto& branch : leader.branches()) {
        for (const auto& line : branch.lines) {
            json vertices = json::array();
            for (const KdGePoint3d& vertex : line.vertices)
                vertices.push_back(point(vertex));
            lines.push_back(vertices);
        }
    }
    json row = {{"lines", lines},
                {"lineType", leader.leaderLineType()},
                {"arrowSize", leader.arrowSize()},
                {"dogleg", leader.enableDogleg()},
                {"doglegLength", leader.doglegLength()},
                {"left", leader.textAttachmentType(KdDb::kLeftLeader)},
                {"right", leader.textAttachmentType(KdDb::kRightLeader)},
                {"frame", leader.enableFrameText()},
                {"lineWeight", leader.leaderLineWeight()},
                {"textStyle", utf8(recordName(leader.textStyleId()))},
                {"gap", leader.landingGap()}};
    if (const auto text = leader.mtext())
        row["text"] = describe(*text);
    return row;
}

json describe(const KdDbEntity& entity)
{
    if (const auto* definition = dynamic_cast<const KdDbAttributeDefinition*>(&entity)) {
        json row = describe(static_cast<const KdDbText&>(*definition));
        addAttribute(*definition, definition->getMTextAttributeDefinitionConst(), row);
        row["prompt"] = utf8(definition->prompt());
        return row;
    }
    if (const auto* attribute = dynamic_cast<const KdDbAttribute*>(&entity)) {
        json row = describe(static_cast<const KdDbText&>(*attribute));
        addAttribute(*attribute, attribute->getMTextAttributeConst(), row);
        return row;
    }
    if (const auto* text = dynamic_cast<const KdDbText*>(&entity))
        return describe(*text);
    if (const auto* text = dynamic_cast<const KdDbMText*>(&entity))
        return describe(*text);
    if (const auto* leader = dynamic_cast<const KdDbLeader*>(&entity))
        return describe(*leader);
    if (const auto* leader = dynamic_cast<const KdDbMLeader*>(&entity))
        return describe(*leader);
    if (const auto* shape = dynamic_cast<const KdDbShape*>(&entity))
        return {{"name", utf8(shape->name())},
                {"position", point(shape->position())},
                {"size", shape->size()}};
    if (const auto* frame = dynamic_cast<const KdDbFcf*>(&entity))
        return {{"text", utf8(frame->text())},
                {"location", point(frame->location())},
                {"dimensionStyle", utf8(recordName(frame->dimensionStyle()))}};
    return {};
}

void print(const KdDbDatabase& drawing)
{
    for (const KdDbObject* object : drawing.objects()) {
        if (!object->isKindOf(KdDbEntity::desc()))
            continue;
        json row = describe(static_cast<const KdDbEntity&>(*object));
        if (row.is_null())
            continue;
        row["handle"] = object->handle();
        std::printf("%s\n", row.dump(-1, ' ', true, json::error_handler_t::replace).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
