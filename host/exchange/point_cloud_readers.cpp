// Point clouds and the files behind them.
#include <entities/point_cloud.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

// clang-format off
constexpr FieldRow<PointCloudExMembers> kCloudFields[] = {
    {12, field<&PointCloudExMembers::origin>},
    {210, field<&PointCloudExMembers::xAxis>},
    {290, field<&PointCloudExMembers::locked>},
    {295, field<&PointCloudExMembers::showCropped>},
    {330, field<&PointCloudExMembers::definition>},
};
constexpr FieldRow<PointCloudDefExMembers> kDefinitionFields[] = {
    {1, field<&PointCloudDefExMembers::sourceFileName>},
};
// clang-format on

/// Of the names and of the short numbers only the first one behind the definition counts; further
/// ones tell of colour ramps.
void readPointCloud(RecordReader& reader, PointCloudExMembers& cloud)
{
    bool hasName = false;
    bool hasStylization = false;
    while (reader.next()) {
        if (!reader.isIn("AcDbPointCloudEx")) {
            continue;
        } else if (reader.code() == 1 && !hasName) {
            cloud.name = reader.text();
            hasName = true;
        } else if (reader.code() == 71 && !hasStylization) {
            cloud.stylization = reader.shortInteger();
            hasStylization = true;
        } else {
            takeField(kCloudFields, reader, cloud);
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbPointCloudEx, PointCloudExMembers, readPointCloud>(),
    memberReader<KdDbPointCloudDefEx, PointCloudDefExMembers, readFields<kDefinitionFields>>(),
};

} // namespace

std::span<const MemberReaderRow> pointCloudReaders()
{
    return kRows;
}

} // namespace dxf
