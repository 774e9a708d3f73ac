/// The central predicate of a run, does this value satisfy the filter, and the numeric predicates.
#pragma once

#include <optional>

#include <values/operators.h>
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

/// The same comparison, made ready once for many values: what follows from the parameters alone is
/// found out here. The parameters must outlive it.
class PropertyComparison
{
  public:
    explicit PropertyComparison(const PropertyParameters& parameters);
    /// See `CompareProp`.
    bool satisfies(const ResBuf* value, const ResBuf* filter) const;

  private:
    using Compare = bool (*)(const ResBuf& value, const ResBuf& filter, Operators how);
    using Coordinate = double (*)(const ResBuf& record);

    bool m_selectsAll;
    bool m_isPoint;
    Operators m_how;
    Compare m_compare = nullptr;       ///< null: nothing satisfies
    Coordinate m_coordinate = nullptr; ///< of points
};

/// Within which reals count as equal where the drawing does not say.
constexpr double kDefaultTolerance = 1.0e-8;

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
