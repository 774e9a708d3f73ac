/// The central predicate of a run, does this value satisfy the filter, and the numeric predicates.
#pragma once

#include <optional>

#include <values/property_parameters.h>

/// Compares the value of an entity with the filter, by operator and kind in `parameters`. Reals
/// count as equal within the drawing's linear precision, which is read anew at every comparison.
/// @param value   the entity's value; a chain of points is walked, otherwise the head alone counts.
///                A record of another kind is read as its getter's neutral value
/// @param filter  what the user asked for; its head counts
/// @return        true if the value satisfies the filter. An empty operator is satisfied by
///                anything, null included; any other by no null record. An operator that the kind
///                does not offer, or a point without an axis, is a mistake of the caller and
///                satisfies nothing
bool CompareProp(ResBuf* value, ResBuf* filter, PropertyParameters parameters);

/// The tolerance that follows from the linear precision of the drawing: one displayed unit.
/// @param fallback  the answer when the precision is not to be had
double CompareDynamicEpsilon(double fallback);

/// Has reals compared within another tolerance for the length of a scope.
class ScopedTolerance
{
  public:
    /// @param tolerance  not negative
    explicit ScopedTolerance(double tolerance);
    ~ScopedTolerance();
    ScopedTolerance(const ScopedTolerance&) = delete;
    ScopedTolerance& operator=(const ScopedTolerance&) = delete;

  private:
    std::optional<double> m_before;
};

/// Equality within an absolute tolerance. The arguments differ in part: when `b` itself is within
/// the tolerance of zero, `a` is tested against zero and not against `b`. A NaN counts as equal,
/// unless `a` is one and `b` is as good as zero.
bool RealEqual(double a, double b, double tolerance);

/// Equality of the ratio `a / b` to 1 within the tolerance, or of both to zero.
bool kdadRealEqual(double a, double b, double tolerance);

/// True from `-tolerance` to `tolerance`, both included; false for a NaN.
bool kdadIsZero(double value, double tolerance);

/// True for zeros and normal numbers; false for subnormal ones, infinities and NaN.
bool validateDouble(double value);
