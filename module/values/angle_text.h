/// Typed angles, in every notation at once: degrees, with minutes and seconds, grads, radians,
/// bearings.
#pragma once

#include <runtime/kd_string.h>
#include <runtime/status.h>

/// What `ConvertAngleToFloat` leaves undone, as bits of its flags.
namespace AngleFlags {
constexpr int KeepFrame = 1; ///< "ANGBASE" and "ANGDIR" are not applied
constexpr int KeepTurns = 2; ///< not brought into one turn
constexpr int KeepDirection =
    4; ///< with `KeepFrame`: a clockwise "ANGDIR" does not reverse it either
} // namespace AngleFlags

/// Reads an angle such as `45d30'15"`, `100g`, `1.2r` or `N 45d E`. The letters in the text decide
/// on the notation; only a bare number is read by `units`.
/// @param flags   `AngleFlags`
/// @param text    user text; white space around it and one leading underscore are skipped
/// @param units   0 degrees, 1 degrees with minutes and seconds, 2 grads, 3 radians, 4 and above
///                surveyor; negative: "AUNITS"
/// @param result  radians, counter-clockwise from the X axis, within one turn; untouched on failure
/// @return        `RTNORM`, or `RTERROR` for a text that is no angle or above 1.0e10
int ConvertAngleToFloat(int flags, const wchar_t* text, int units, double* result);

/// The same; `OnOK` of the dialog uses it.
int stringToAngle(int flags, const KdString& text, int units, double& result);

/// Reads degrees, minutes and seconds such as `-45d30'15"`, each of which may be missing, or a bare
/// number of degrees, which alone may lie outside of half a turn either way.
/// @param result  radians; untouched on failure
/// @return        `RTNORM` or `RTERROR`
int ConvertToRadians(wchar_t* text, double* result);

/// Brings `*start` into 0 up to a turn, and `*end` likewise and then not below `*start`. What is no
/// normal number, or above 1.0e6, becomes 0 and ends the work. `end` may be null.
void normalizeAngle(double* start, double* end);
