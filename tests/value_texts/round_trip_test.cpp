#include <editor/units.h>

#include <cmath>
#include <numbers>
#include <random>
#include <string>

#include <values/angle_text.h>
#include <values/distance_text.h>

#include "support.h"

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

using RoundTrip = UnitsTest;

std::wstring describe(const KdString& text)
{
    return std::wstring(text.view());
}

/// How far a value may move when it is printed and read back.
double realTolerance(double value, int units, int precision)
{
    const double decimal = 0.5 * std::pow(10.0, -precision);
    if (units == 1)
        return std::fabs(value) * decimal * 1.0000001;
    const double half = units >= 4 ? 0.5 * std::pow(2.0, -precision) : decimal;
    return half + std::fabs(value) * 1e-15;
}

TEST_F(RoundTrip, KeepsReals)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    for (int i = 0; i < 40000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, static_cast<int>(random() % 12) - 4);
        const int units = 1 + static_cast<int>(random() % 5);
        const int precision = static_cast<int>(random() % 9);
        set(L"DIMZIN", static_cast<int>(random() % 16));
        set(L"UNITMODE", static_cast<int>(random() % 2));
        KdString text;
        ASSERT_EQ(RTNORM, kddbRToS(value, text, units, precision));
        double read = 0.0;
        ASSERT_EQ(RTNORM, stringToDistance(text, -1, read)) << describe(text);
        ASSERT_NEAR(value, read, realTolerance(value, units, precision)) << describe(text);
    }
}

TEST_F(RoundTrip, KeepsRealsOfEveryMagnitude)
{
    for (int exponent = -300; exponent <= 303; ++exponent) {
        const double value = 1.2345 * std::pow(10.0, exponent);
        for (int units = 1; units <= 5; ++units) {
            KdString text;
            ASSERT_EQ(RTNORM, kddbRToS(value, text, units, 8));
            double read = 0.0;
            ASSERT_EQ(RTNORM, stringToDistance(text, -1, read)) << describe(text);
            const double coarse = 0.5 * std::pow(2.0, -8);
            ASSERT_NEAR(value, read, units == 1 ? value * 1e-8 : coarse + value * 1e-8);
        }
    }
}

/// Half of the last part that an angle is printed with.
double angleTolerance(int units, int precision)
{
    const double decimal = 0.5 * std::pow(10.0, -precision);
    const double slack = 1e-9;
    switch (units) {
    case 0:
        return decimal * kTurn / 360.0 + slack;
    case 2:
        return decimal * kTurn / 400.0 + slack;
    case 3:
        return decimal + slack;
    default:
        break;
    }
    const double parts = precision >= 3 ? 3600.0 : precision >= 1 ? 60.0 : 1.0;
    const double finer = units == 1 && precision > 4 ? std::pow(10.0, precision - 4) : 1.0;
    return 0.5 * kTurn / 360.0 / parts / finer + slack;
}

double apart(double a, double b)
{
    return std::fabs(std::remainder(a - b, kTurn));
}

TEST_F(RoundTrip, KeepsAngles)
{
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> any(-20.0, 20.0);
    for (int i = 0; i < 40000; ++i) {
        const double angle = any(random);
        const int units = static_cast<int>(random() % 5);
        const int precision = static_cast<int>(random() % 9);
        set(L"AUNITS", units);
        set(L"ANGDIR", static_cast<int>(random() % 2));
        set(L"DIMZIN", static_cast<int>(random() % 16));
        set(L"UNITMODE", static_cast<int>(random() % 2));
        KdString text;
        ASSERT_EQ(RTNORM, kddbAngToS(angle, text, -1, precision));
        double read = 0.0;
        ASSERT_EQ(RTNORM, stringToAngle(0, text, -1, read)) << describe(text);
        ASSERT_LE(apart(angle, read), angleTolerance(units, precision)) << describe(text);
    }
}

TEST_F(RoundTrip, KeepsWholeDegrees)
{
    for (int units = 0; units <= 4; ++units) {
        set(L"AUNITS", units);
        for (int degrees = 0; degrees < 360; ++degrees) {
            const double angle = degrees * kTurn / 360.0;
            KdString text;
            ASSERT_EQ(RTNORM, kddbAngToS(angle, text, -1, 8));
            double read = 0.0;
            ASSERT_EQ(RTNORM, stringToAngle(0, text, -1, read)) << describe(text);
            ASSERT_LE(apart(angle, read), 1e-8) << describe(text);
        }
    }
}

} // namespace
