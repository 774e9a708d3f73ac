/// The provider of hatches.
#pragma once

#include <entities/hatch.h>
#include <plugin/entity_pe.h>
#include <runtime/c_array.h>

#include <providers/table_provider.h>

/// What it lists depends on the hatch: gradients and patterns have keys of their own. It answers
/// all of them for every hatch.
class KdDbHatch_Extension
    : public TableProvider<KdDbHatch_Extension, KdDbEntity_Extension, KdDbHatch>
{
    using Table = TableProvider<KdDbHatch_Extension, KdDbEntity_Extension, KdDbHatch>;

  public:
    /// One line of the list of ISO pen widths.
    struct ISOpWUnit
    {
        double value; ///< millimetres
        KdString name;
    };

    static std::span<const PropertyRow> rows();

    /// Appends nothing, the general keys included, for what is no hatch.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    /// The area that is filled, in square drawing units; untouched for what is no hatch.
    int getEntityTotalArea(const KdDbEntity* entity, double& area) const override;

    /// Appends the pattern names of the hatches in the model of the working drawing, in the order
    /// of the drawing, unless `names` holds them already. Letters count with their case.
    static void GetHatchPatternNames(KdArray<KdString>& names);
    static void FillISOPenWidthList(CArray<ISOpWUnit, const ISOpWUnit&>& list);
};

/// The area of a hatch in square drawing units, measured on a copy that is filled solid or ruled
/// with narrow lines; 0 where that fails. The second is as rough as the lines are wide, and means
/// something for areas without holes or bays alone. Both return 0.
int calculateAreaBySolidPattern(const KdDbEntity* entity, double& area);
int calculateAreaByLinePattern(const KdDbEntity* entity, double& area);
