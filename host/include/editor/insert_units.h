/// The units in which drawings and images measure lengths, by the numbers of "INSUNITS".
#pragma once

#include <runtime/export.h>
#include <runtime/kd_string.h>
#include <runtime/status.h>

/// The highest number of a unit. 0 stands for no unit.
constexpr int kHighestInsertUnit = 23;
constexpr int kInsertUnitInches = 1;
constexpr int kInsertUnitMillimeters = 4;
constexpr int kInsertUnitMeters = 6;

/// By what a length is multiplied that passes from one unit to another; 1 if either is none.
/// @return  `eInvalidInput` for a number that is no unit, `factor` untouched
KW_EXPORT KdErrorStatus kddbGetUnitsConversion(int from, int to, double& factor);

/// The name of a unit in English, as "Meters".
/// @return  `RTNORM`; `RTERROR` for a number that is no unit, `name` untouched
KW_EXPORT int kdedGetUnitsValueString(int unit, KdString& name);
