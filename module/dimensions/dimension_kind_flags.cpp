#include <dimensions/dimension_kind_flags.h>

#include <entities/linear_dimensions.h>

namespace {

// Numbers of DIMLUNIT and DIMALTU.
constexpr int kEngineering = 3;
constexpr int kArchitectural = 4;
constexpr int kUnstackedArchitectural = 6;

bool isArchitectural(int unit)
{
    return unit == kArchitectural || unit == kUnstackedArchitectural;
}

} // namespace

RotatedState rotatedState(const KdDbEntity* entity)
{
    const auto& dimension = static_cast<const KdDbDimension&>(*entity);
    return {styleHasAlternateUnits(dimension), showsTolerances(dimension), dimension.dimlunit(),
            dimension.dimaltu()};
}

bool hasNoFeet(const RotatedState& state)
{
    return state.unit != kEngineering && state.unit != kArchitectural;
}

bool hasNoAlternate(const RotatedState& state)
{
    return !state.alternate;
}

bool hasNoAlternateDecimals(const RotatedState& state)
{
    return !state.alternate || isArchitectural(state.alternateUnit);
}

bool hasNoAlternateFeet(const RotatedState& state)
{
    return !state.alternate ||
           (state.alternateUnit != kEngineering && !isArchitectural(state.alternateUnit));
}

bool hasNoToleranceFeet(const RotatedState& state)
{
    return hasNoFeet(state) || !state.tolerances;
}

bool hasNoAlternateTolerances(const RotatedState& state)
{
    return !state.alternate || !state.tolerances;
}

bool hasNoAlternateToleranceDecimals(const RotatedState& state)
{
    return hasNoAlternateDecimals(state) || !state.tolerances;
}

bool hasNoAlternateToleranceFeet(const RotatedState& state)
{
    return hasNoAlternateFeet(state) || !state.tolerances;
}

bool arcHasAlternate(const KdDbEntity* entity)
{
    return entity && entity->isKindOf(KdDbRotatedDimension::desc()) &&
           styleHasAlternateUnits(static_cast<const KdDbDimension&>(*entity));
}
