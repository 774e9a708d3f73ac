// Images, the files behind them, and frames with the content of other programs.
#include <entities/image.h>
#include <entities/ole_frame.h>
#include <entities/underlay.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kRectangularClip = 1;

KdGeVector2d pair(RecordReader& reader)
{
    const KdGePoint2d point = reader.point2d();
    return {point.x, point.y};
}

// clang-format off
constexpr FieldRow<RasterImageMembers> kImageFields[] = {
    {10, field<&RasterImageMembers::origin>},
    {11, field<&RasterImageMembers::pixelU>},
    {12, field<&RasterImageMembers::pixelV>},
    {13, [](RecordReader& reader, RasterImageMembers& image) { image.size = pair(reader); }},
    {14, [](RecordReader& reader, RasterImageMembers& image) { image.clipPolygon.push_back(reader.point2d()); }},
    {70, field<&RasterImageMembers::displayOptions>},
    {71, [](RecordReader& reader, RasterImageMembers& image) { image.clipIsRectangle = reader.integer() == kRectangularClip; }},
    {280, field<&RasterImageMembers::clipped>},
    {281, field<&RasterImageMembers::brightness>},
    {282, field<&RasterImageMembers::contrast>},
    {283, field<&RasterImageMembers::fade>},
    {290, field<&RasterImageMembers::clipIsInverted>},
    {340, field<&RasterImageMembers::definition>},
};
constexpr FieldRow<RasterImageDefMembers> kDefinitionFields[] = {
    {1, field<&RasterImageDefMembers::sourceFileName>},
    {10, [](RecordReader& reader, RasterImageDefMembers& definition) { definition.size = pair(reader); }},
    {11, [](RecordReader& reader, RasterImageDefMembers& definition) { definition.pixelSize = pair(reader); }},
    {280, field<&RasterImageDefMembers::loaded>},
    {281, field<&RasterImageDefMembers::unit>},
};
constexpr FieldRow<OleFrameMembers> kFrameFields[] = {
    {10, field<&OleFrameMembers::upperLeft>},
    {11, field<&OleFrameMembers::lowerRight>},
    {71, field<&OleFrameMembers::type>},
};
constexpr FieldRow<UnderlayMembers> kUnderlayFields[] = {
    {10, field<&UnderlayMembers::position>},
    {11, [](RecordReader& reader, UnderlayMembers& page) { page.clipPolygon.push_back(reader.point2d()); }},
    {41, [](RecordReader& reader, UnderlayMembers& page) { page.scale.sx = reader.real(); }},
    {42, [](RecordReader& reader, UnderlayMembers& page) { page.scale.sy = reader.real(); }},
    {43, [](RecordReader& reader, UnderlayMembers& page) { page.scale.sz = reader.real(); }},
    {50, [](RecordReader& reader, UnderlayMembers& page) { page.rotation = reader.angle(); }},
    {210, [](RecordReader& reader, UnderlayMembers& page) { page.extrusion.setDirection(reader.vector()); }},
};
constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbUnderlayReference, UnderlayMembers, readFields<kUnderlayFields>>(),
    memberReader<KdDbRasterImage, RasterImageMembers, readFields<kImageFields>>(),
    memberReader<KdDbWipeout, RasterImageMembers, readFields<kImageFields>>(),
    memberReader<KdDbRasterImageDef, RasterImageDefMembers, readFields<kDefinitionFields>>(),
    memberReader<KdDbOleFrame, OleFrameMembers, readFields<kFrameFields>>(),
};
// clang-format on

} // namespace

std::span<const MemberReaderRow> imageReaders()
{
    return kRows;
}

} // namespace dxf
