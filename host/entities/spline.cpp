#include <entities/spline.h>

KD_RX_DEFINE(KdDbSpline, KdDbCurve, L"AcDbSpline", L"SPLINE")
KD_RX_DEFINE(KdDbHelix, KdDbSpline, L"AcDbHelix", L"HELIX")
