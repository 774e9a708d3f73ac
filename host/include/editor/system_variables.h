/// System variables: the settings of the working drawing and of the session, by name. For the main
/// thread.
#pragma once

#include <vector>

#include <runtime/resbuf.h>

/// Reads a system variable.
///
/// A variable of the drawing is read from the header of the working database on each call; lengths
/// are drawing units, angles radians, points world coordinates. "CVPORT" is 1 on a sheet and 2 in
/// the model or in a viewport of the sheet; it follows "TILEMODE" and the active sheet until it is
/// set, and can't be 1 while the model is shown. Takes constant time, and allocates nothing unless
/// the value is a text.
/// @param name    without regard to case
/// @param result  receives restype and value: `RTSHORT` in `rint`, `RTREAL` in `rreal`, `RTSTR` in
///                `rstring`, `RT3DPOINT` in `rpoint`. What it held before is not freed. A text
///                belongs to the caller, who frees it with `kdutDelString` or with its record.
/// @return        `RTNORM`; `RTERROR`, with `result` untouched, if an argument is null, no variable
///                has that name, or it is one of the drawing and there is no working database
KW_EXPORT int kdedGetVar(const wchar_t* name, resbuf* result);

/// Sets a system variable.
/// @param name   without regard to case
/// @param value  of the restype that `kdedGetVar` gives for that variable; a text is copied
/// @return       `RTNORM`. `RTERROR` if an argument is null, no variable has that name, `value` is
///               of another type or holds a null text, or the variable is one of the drawing and
///               there is no working database. `RTREJ` if the variable is read-only, or the value
///               out of range, not finite, or the name of something that the drawing lacks. Nothing
///               changes unless `RTNORM` is returned.
KW_EXPORT int kdedSetVar(const wchar_t* name, const resbuf* value);

/// What there is to know about a system variable, for completion and documentation.
struct KdedSystemVariable
{
    const wchar_t* name; ///< upper case
    short restype;
    bool readOnly;
    bool ofDrawing; ///< kept in the drawing, not in the session
    double lowest;  ///< of a number; minus infinity where there is no limit
    double highest;
};

/// All system variables, sorted by name.
KW_EXPORT std::vector<KdedSystemVariable> kdedSystemVariables();
