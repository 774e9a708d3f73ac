/// Typed distances, in plain decimals or in feet, inches and fractions. One drawing unit is one
/// inch.
#pragma once

#include <runtime/kd_string.h>
#include <runtime/status.h>

/// Reads a distance such as `30.5`, `2'-6 1/2"`, `1.5E-2` or `-3/4`. The text alone decides how it
/// is read, so all of these are taken in every drawing.
/// @param text    user text; blanks around it are skipped
/// @param units   a unit mode, for symmetry with the printing side; it changes nothing
/// @param result  drawing units. On failure the outcome of the part that could be read, mostly 0;
///                untouched only if `text` is null
/// @param cutAtX  true: the text ends at its first "x" or "X"
/// @return        `RTNORM`; `RTERROR` for a text that is no distance; `RTREJ` for rubbish behind
/// the
///                exponent or a magnitude that is neither 0 nor within 1.2345678e-304 and its
///                inverse
int ConvertStringToDistance(const wchar_t* text, int units, double* result, bool cutAtX);

/// The same without a cut, for callers with a value to fall back on: `result` is untouched on
/// failure.
int stringToDistance(const KdString& text, int units, double& result);

/// Reads an unsigned decimal number with an optional exponent, which must fill the whole text.
/// Arguments and failures as in `ConvertStringToDistance`; `result` begins as 0.
int parse_as_decimal(wchar_t* text, double* result);

/// Reads an unsigned distance in feet, inches and a fraction, which must fill the whole text.
/// `result` is in inches, and 0 on failure. There is no limit to the magnitude.
/// @return  `RTNORM` or `RTERROR`
int parse_as_architectural(wchar_t* text, double* result);

/// Reads the run of digits at `*cursor` and moves behind it. Where no digit stands, `*value` and
/// `*digits` become 0.
void gathervalue(wchar_t** cursor, double* value, int* digits);

/// Trims `text` in place, letter by letter of `modes` in either case: "b" removes leading blanks
/// and tabs; "e" ends the text at its first carriage return and removes blanks that were its last
/// characters; "m" removes the blanks between the first and the last other character. A text of
/// nothing but blanks becomes empty in any case. Null does nothing.
void trimWhiteSpace(wchar_t* text, const wchar_t* modes);
