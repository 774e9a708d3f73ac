#include <entities/point_cloud.h>

KD_RX_DEFINE(KdDbPointCloudEx, KdDbEntity, L"AcDbPointCloudEx", L"ACDBPOINTCLOUDEX")
KD_RX_DEFINE(KdDbPointCloudDefEx, KdDbObject, L"AcDbPointCloudDefEx", L"ACDBPOINTCLOUDDEFEX")

double KdDbPointCloudEx::rotation() const
{
    const KdGeVector3d flat{data().xAxis.x, data().xAxis.y, 0.0};
    return KdGeVector3d::kXAxis.angleTo(flat, KdGeVector3d::kZAxis);
}

KdString KdDbPointCloudEx::getActiveFileName() const
{
    const OpenForRead<KdDbPointCloudDefEx> definition(data().definition);
    return definition ? definition->sourceFileName() : KdString();
}
