/// Providers of the dimensions.
#pragma once

#include <entities/all.h>

#include <dimensions/dimension_kind.h>
#include <dimensions/dimension_provider.h>
#include <providers/table_provider.h>

/// Whether a kind's list ends where that of a dynamic constraint does.
enum class OnCompleteList
{
    Stop,
    GoOn,
};

/// The provider of one kind of dimension: its part of the table of the family.
template <class Self, class Host, DimensionKind Kind, OnCompleteList Ending>
class DimensionKindProvider : public TableProvider<Self, KdDbDimension_Extension, Host>
{
  public:
    static std::span<const PropertyRow> rows() { return dimensionKindRows(Kind); }

    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        const int status = KdDbDimension_Extension::PropertyCount(entity, names, flags);
        const bool isComplete = status == KdDbDimension_Extension::kListIsComplete;
        if (Ending == OnCompleteList::GoOn || !isComplete)
            listRows(rows(), entity, names, flags);
        return status;
    }
};

#define KW_DIMENSION_PROVIDER(Provider, Host, Kind, Ending)                                        \
    class Provider : public DimensionKindProvider<Provider, Host, DimensionKind::Kind,             \
                                                  OnCompleteList::Ending>                          \
    {                                                                                              \
    };

// clang-format off
KW_DIMENSION_PROVIDER(KdDbAlignedDimension_Extension, KdDbAlignedDimension, Aligned, Stop)
KW_DIMENSION_PROVIDER(KdDbAngularDimension_Extension, KdDb2LineAngularDimension, TwoLine, Stop)
KW_DIMENSION_PROVIDER(KdDb3PointAngularDimension_Extension, KdDb3PointAngularDimension, ThreePoint, Stop)
KW_DIMENSION_PROVIDER(KdDbRadialDimension_Extension, KdDbRadialDimension, Radial, Stop)
KW_DIMENSION_PROVIDER(KdDbRadialLargeDimension_Extension, KdDbRadialDimensionLarge, RadialLarge, GoOn)
KW_DIMENSION_PROVIDER(KdDbDiametricDimension_Extension, KdDbDiametricDimension, Diametric, Stop)
KW_DIMENSION_PROVIDER(KdDbOrdinateDimension_Extension, KdDbOrdinateDimension, Ordinate, GoOn)
// clang-format on

class KdDbRotatedDimension_Extension
    : public DimensionKindProvider<KdDbRotatedDimension_Extension, KdDbRotatedDimension,
                                   DimensionKind::Rotated, OnCompleteList::Stop>
{
  public:
    /// Lists nothing at all, and returns 0, for any other entity and where the style, which the
    /// flags follow from, can't be opened.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
};

class KdDbArcDimension_Extension
    : public DimensionKindProvider<KdDbArcDimension_Extension, KdDbArcDimension, DimensionKind::Arc,
                                   OnCompleteList::GoOn>
{
  public:
    /// Lists the ends of a partial arc and the points of a leader twice, as intended.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
};
