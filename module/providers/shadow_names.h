/// Which shadows an entity has, as a name.
#pragma once

#include <providers/name_rows.h>

/// The numbers are those of drawing files.
int shadowsOf(const KdDbEntity& entity);

inline constexpr NameRow kShadowNames[] = {
    {0, {77730, L"Casts and receive shadows"}},
    {1, {77731, L"Casts shadows"}},
    {2, {77732, L"Receive shadows"}},
    {3, {77733, L"Ignore shadows"}},
};

/// The same in the words of filled faces and revolved surfaces; as intended.
inline constexpr NameRow kShadowNamesOfFaces[] = {
    {0, {77730, L"Casts and Recives shadows"}},
    {1, {77731, L"Casts shadows"}},
    {2, {77732, L"Receives shadows"}},
    {3, {77733, L"Ignore shadows"}},
};

/// The row of a provider, under an id of its own.
template <const auto& Names>
constexpr PropertyRow shadowRow(int id)
{
    return {{id, L"3D Visualization:Shadow display"},
            editable,
            ResBuf::kString,
            nameOf<shadowsOf, Names>,
            namesOf<Names>};
}
