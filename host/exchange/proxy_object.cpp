#include "proxy_object.h"

KD_RX_DEFINE(KdDbProxyObject, KdDbObject, L"AcDbProxyObject", L"ACAD_PROXY_OBJECT")
