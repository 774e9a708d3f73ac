/// From the names that a person types to the types, properties and operators of a drawing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <common/catalog.h>

/// A name found, or a sentence that says what would have been right.
template <class Found>
struct Lookup
{
    std::optional<Found> found;
    std::string problem;
};

/// A property, and of a point one coordinate.
struct ChosenProperty
{
    PropertyEntry property;
    int axis = 0; ///< 1 X, 2 Y, 3 Z; 0 for what is no point

    /// The name with its axis, as lists show it.
    std::wstring listName() const;
};

Lookup<TypeEntry> findType(const std::vector<TypeEntry>& types, const std::wstring& name);

/// Whether a point can be named as a whole, besides its coordinates.
enum class Points
{
    ByCoordinate,
    AlsoWhole,
};

/// Finds a property by its list name or by its whole key, without regard to case and tabs.
Lookup<ChosenProperty> findProperty(const std::vector<PropertyEntry>& properties,
                                    const std::wstring& name, Points points = Points::ByCoordinate);

/// The operator's text as the module knows it, empty for "all".
Lookup<std::wstring> findOperator(const std::vector<std::wstring>& offered,
                                  const std::wstring& text);
