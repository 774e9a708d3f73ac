/// Splines, and helices, which are splines with a rule of their own.
#pragma once

#include <entities/curve.h>

KD_DB_PLAIN_ENTITY(KdDbSpline, KdDbCurve)
KD_DB_PLAIN_ENTITY(KdDbHelix, KdDbSpline)
