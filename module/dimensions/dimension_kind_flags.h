/// Flags of the kinds of dimensions that depend on the entity.
#pragma once

#include <dimensions/dimension_readers.h>

/// What the flags of a rotated dimension follow from.
struct RotatedState
{
    bool alternate; ///< of the style
    bool tolerances;
    int unit;
    int alternateUnit;
};
RotatedState rotatedState(const KdDbEntity* entity);

// True where a property does not apply. The base flags its tolerances the other way round, as
// intended.
bool hasNoFeet(const RotatedState& state);
bool hasNoAlternate(const RotatedState& state);
bool hasNoAlternateDecimals(const RotatedState& state);
bool hasNoAlternateFeet(const RotatedState& state);
bool hasNoToleranceFeet(const RotatedState& state);
bool hasNoAlternateTolerances(const RotatedState& state);
bool hasNoAlternateToleranceDecimals(const RotatedState& state);
bool hasNoAlternateToleranceFeet(const RotatedState& state);

/// The flag of a rotated dimension by one of the rules.
template <bool (*Rule)(const RotatedState&)>
bool rotated(const KdDbEntity* entity)
{
    return Rule(rotatedState(entity));
}

/// Of an arc dimension. Asks for a rotated dimension, as intended, and so is false for arcs.
bool arcHasAlternate(const KdDbEntity* entity);
