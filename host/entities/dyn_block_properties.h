/// Turns parameters and what a reference stores for them into properties.
#pragma once

#include <optional>
#include <vector>

#include <database/xrecord.h>
#include <entities/dyn_block_reference.h>

/// What a reference stores for one parameter; empty where it stores nothing.
struct DynBlockState
{
    std::vector<KdGePoint3d> points; ///< start, end, normal and the point of the base angle, as far
                                     ///< as the parameter has them
    std::optional<KdString> text;
    std::optional<int> number;

    /// From the record that the reference keeps under the parameter's number.
    static DynBlockState of(const KdDbXrecord& record);
};

/// Appends the properties of a parameter; none for a kind that has none.
void appendDynBlockProperties(const KdDbBlockParameter& parameter, const DynBlockState& state,
                              KdDbDynBlockReferencePropertyArray& properties);
