#include <editor/insert_units.h>

#include <iterator>

namespace {

struct UnitRow
{
    const wchar_t* name;
    double meters; ///< 0 for no unit
};

constexpr UnitRow kUnits[] = {
    {L"Unitless", 0.0},
    {L"Inches", 0.0254},
    {L"Feet", 0.3048},
    {L"Miles", 1609.344},
    {L"Millimeters", 0.001},
    {L"Centimeters", 0.01},
    {L"Meters", 1.0},
    {L"Kilometers", 1000.0},
    {L"Microinches", 2.54e-8},
    {L"Mils", 2.54e-5},
    {L"Yards", 0.9144},
    {L"Angstroms", 1e-10},
    {L"Nanometers", 1e-9},
    {L"Microns", 1e-6},
    {L"Decimeters", 0.1},
    {L"Dekameters", 10.0},
    {L"Hectometers", 100.0},
    {L"Gigameters", 1e9},
    {L"Astronomical units", 149597870700.0},
    {L"Light years", 9460730472580800.0},
    {L"Parsecs", 3.0856775814913673e16},
    {L"US survey feet", 1200.0 / 3937.0},
    {L"US survey inches", 100.0 / 3937.0},
    {L"US survey yards", 3600.0 / 3937.0},
};
static_assert(std::size(kUnits) == kHighestInsertUnit + 1);

bool isUnit(int number)
{
    return number >= 0 && number <= kHighestInsertUnit;
}

} // namespace

KdErrorStatus kddbGetUnitsConversion(int from, int to, double& factor)
{
    if (!isUnit(from) || !isUnit(to))
        return eInvalidInput;
    const bool areUnits = from != 0 && to != 0;
    factor = areUnits ? kUnits[from].meters / kUnits[to].meters : 1.0;
    return eOk;
}

int kdedGetUnitsValueString(int unit, KdString& name)
{
    if (!isUnit(unit))
        return RTERROR;
    name = kUnits[unit].name;
    return RTNORM;
}
