// B-spline curves inside the data of a solid modeler.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <geometry/matrix.h>

#include "modeler_records.h"

class ModelerSpline
{
  public:
    /// A point and the derivative there.
    struct Place
    {
        KdGePoint3d point;
        KdGeVector3d derivative;
    };

    /// The curve of a record. Nothing if the record has none, or a damaged one.
    static std::optional<ModelerSpline> read(const ModelerRecords& records, int record,
                                             const KdGeMatrix3d& frame);

    /// `parameter` is taken into the domain.
    Place at(double parameter) const;
    double begin() const { return m_knots[m_degree]; }
    double end() const { return m_knots[m_knots.size() - 1 - m_degree]; }
    /// The part from `first` to `last`, which may be below `first`, cut where the spans of the
    /// curve meet.
    std::vector<double> cuts(double first, double last) const;

  private:
    /// A control point times its weight, and the weight.
    struct Pole
    {
        double x, y, z, weight;
    };

    static Pole mean(const Pole& a, const Pole& b, double share);
    std::size_t spanOf(double parameter) const;

    std::size_t m_degree = 0;
    std::vector<double> m_knots;
    std::vector<Pole> m_poles;
};

/// The corners of the hull around a free surface, in the order of its control points; empty if the
/// record has none that is understood.
std::vector<KdGePoint3d> modelerSurfaceHull(const ModelerRecords& records, int record,
                                            const KdGeMatrix3d& frame);
