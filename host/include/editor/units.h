/// Reals and angles as text in a drawing's units.
#pragma once

#include <database/header_variables.h>
#include <runtime/kd_string.h>
#include <runtime/status.h>

/// The unit settings of one drawing, read at each call. Only looks at the variables it is given.
class KW_EXPORT KdDbHeaderVar
{
  public:
    explicit KdDbHeaderVar(const KdDbHeaderVariables& variables) : m_variables(&variables) {}

    int lunits() const;   ///< 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
    int luprec() const;   ///< decimals, or the power of two of the smallest fraction
    int unitmode() const; ///< 0 as people read it, 1 as it is typed: without blanks
    int aunits() const;   ///< 0 degrees, 1 with minutes and seconds, 2 grads, 3 radians, 4 surveyor
    int auprec() const;
    double angbase() const; ///< radians
    int angdir() const;     ///< 0 counter-clockwise, 1 clockwise
    int dimzin() const; ///< bits 0 and 1: zero feet and inches, 2: leading zeros, 3: trailing ones
    int dimaltz() const;
    int dimalttz() const;
    int dimtzin() const;

  private:
    const KdDbHeaderVariables* m_variables;
};

/// Prints a length or a plain real in linear units; one drawing unit is one inch in the forms with
/// feet. Zeros and blanks follow DIMZIN and UNITMODE of the working database, or their initial
/// values where there is none.
/// @param units      as `KdDbHeaderVar::lunits`; -1: that of the working database
/// @param precision  at most 16 counts; -1: LUPREC of the working database
/// @param buffer     receives the text and a terminator; `size` counts both
/// @return           `RTNORM`; `RTERROR` for other units, a value that is not finite, or a text
/// that
///                   does not fit: the buffer is then empty
KW_EXPORT int kddbRToS(double value, int units, int precision, wchar_t* buffer, unsigned long size);
/// The same into a text, which stays as it was on failure.
KW_EXPORT int kddbRToS(double value, KdString& text, int units, int precision);

/// Prints an angle as the user sees it: counted from ANGBASE in the sense of ANGDIR, within one
/// turn.
/// @param angle      radians, counter-clockwise from the X axis
/// @param units      as `KdDbHeaderVar::aunits`; -1: that of the working database
/// @param precision  decimals; with minutes and seconds 0 gives degrees alone, 1 and 2 minutes, 3
/// and
///                   4 seconds, more their decimals; bearings end at whole seconds, because readers
///                   of bearings take no decimals there; -1: AUPREC of the working database
/// @return           as `kddbRToS`
KW_EXPORT int kddbAngToS(double angle, int units, int precision, wchar_t* buffer,
                         unsigned long size);
/// The same into a text, which stays as it was on failure.
KW_EXPORT int kddbAngToS(double angle, KdString& text, int units, int precision);

/// Conversions between the units of users and those of the program.
struct KW_EXPORT KdadUnitsFormatter
{
    /// An angle in degrees, as parameters of constraints hold it, in radians.
    static double angleToRadian(double degrees);
};
