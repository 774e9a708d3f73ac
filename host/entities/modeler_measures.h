// Measures of bodies.
#pragma once

#include <optional>

#include <geometry/extents.h>

#include "modeler_body.h"

struct PlaneMeasures
{
    double area = 0.0;
    double perimeter = 0.0;
    KdGeVector3d normal;
};

/// Of a body of plane faces; nothing if it has no face or another one.
std::optional<PlaneMeasures> measurePlaneFaces(const ModelerBody& body);

/// The box around a body; empty if there is nothing.
KdGeExtents3d extentsOfBody(const ModelerBody& body);
