#include <entities/point_cloud.h>

KD_RX_DEFINE(KdDbPointCloudEx, KdDbEntity, L"AcDbPointCloudEx", L"ACDBPOINTCLOUDEX")
