#include <entities/proxy_entity.h>

KD_RX_DEFINE(KdDbProxyEntity, KdDbEntity, L"AcDbProxyEntity", L"ACAD_PROXY_ENTITY")
