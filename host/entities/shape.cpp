#include <entities/shape.h>

KD_RX_DEFINE(KdDbShape, KdDbEntity, L"AcDbShape", L"SHAPE")
