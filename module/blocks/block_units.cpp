#include <blocks/block_units.h>

#include <cstddef>
#include <iterator>

#include <providers/property_row.h>

namespace {

// In the order of the numbers.
constexpr ResourceText kNames[] = {
    {77959, L"Undefined"},    {77947, L"Inches"},      {77944, L"Feet"},
    {77954, L"Miles"},        {77955, L"Millimeters"}, {77941, L"Centimeters"},
    {77951, L"Meters"},       {77948, L"Kilometers"},  {77952, L"Microinches"},
    {77956, L"Mils"},         {77960, L"Yards"},       {77939, L"Angstroms"},
    {77957, L"Nanometers"},   {77953, L"Microns"},     {77942, L"Decimeters"},
    {77943, L"Dekameters"},   {77946, L"Hectometers"}, {77945, L"Gigameters"},
    {77940, L"Astronomical"}, {77949, L"LightYears"},  {77958, L"Parsecs"},
};

// One more than there are names, as intended.
constexpr double kMetres[] = {
    1.0,
    0.0254,
    0.3048,
    1609.344,
    0.001,
    0.01,
    1.0,
    1000.0,
    2.54e-08,
    2.54e-05,
    0.9144,
    1e-10,
    1e-09,
    1e-06,
    0.1,
    10.0,
    100.0,
    1000000000.0,
    149597870000.0,
    9460528177426800.0,
    3.0856775670468e+16,
    3.0856775670468e+16,
};

double metres(int unit)
{
    const auto index = static_cast<std::size_t>(unit);
    return kMetres[index < std::size(kMetres) ? index : 0];
}

} // namespace

KdString blockUnitName(int unit)
{
    const auto index = static_cast<std::size_t>(unit);
    return index < std::size(kNames) ? kNames[index].text() : KdString();
}

double blockUnitFactor(int blockUnit, int drawingUnit)
{
    return metres(blockUnit) / metres(drawingUnit);
}
