#include <values/angle_text.h>

#include <cmath>

#include <values/compare.h>

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kThousandTurns = 6283.185307179586;
constexpr double kStartStep = 314159.2653589793;
constexpr double kEndStep = 628318.5307179586;
constexpr double kLargest = 1.0e6;
constexpr double kSlack = 1.0e-10;

bool isUsable(double angle)
{
    return validateDouble(angle) && std::fabs(angle) <= kLargest;
}

void reduceBy(double step, double& angle)
{
    while (angle > step)
        angle -= step;
    while (angle < -step)
        angle += step;
}

void bringIntoTurn(double firstStep, double& angle)
{
    reduceBy(firstStep, angle);
    reduceBy(kThousandTurns, angle);
    while (angle + kSlack < 0.0)
        angle += kTurn;
    while (angle - kSlack >= kTurn)
        angle -= kTurn;
}

} // namespace

void normalizeAngle(double* start, double* end)
{
    if (!isUsable(*start)) {
        *start = 0.0;
        return;
    }
    bringIntoTurn(kStartStep, *start);
    if (!end)
        return;
    if (!isUsable(*end)) {
        *end = 0.0;
        return;
    }
    bringIntoTurn(kEndStep, *end);
    if (*start > *end)
        *end += kTurn;
}
