#include <geometry/turn.h>

#include <cmath>

double KdGe::endOfTurn(double start, double end)
{
    const double span = end - start;
    if (span >= 0.0 && span <= kTurn + kAngleTolerance)
        return end;
    return end - kTurn * std::floor(span / kTurn);
}

double KdGe::segmentArea(double span)
{
    return (span - std::sin(span)) / 2.0;
}
