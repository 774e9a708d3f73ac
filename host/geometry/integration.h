// Integrals by the geometry kernel.
#pragma once

#include <functional>

namespace geometry {

/// The integral of a smooth function, to a relative error near the precision of numbers. A function
/// with corners costs more and loses a few digits.
double integral(const std::function<double(double)>& function, double from, double to);

} // namespace geometry
