// Splines inside the data of a solid modeler.
#pragma once

#include <memory>
#include <vector>

#include <geometry/matrix.h>
#include <geometry/nurb_curve.h>

#include "modeler_records.h"

/// The whole curve of a record; null if it has none that is understood.
std::unique_ptr<KdGeNurbCurve3d> readModelerCurve(const ModelerRecords& records, int record,
                                                  const KdGeMatrix3d& frame);

/// The control points of a free surface, in whose hull it lies; empty if the record has none that
/// is understood.
std::vector<KdGePoint3d> readModelerSurface(const ModelerRecords& records, int record,
                                            const KdGeMatrix3d& frame);
