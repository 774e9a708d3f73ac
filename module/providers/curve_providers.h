/// Providers of the curves.
#pragma once

#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <providers/table_provider.h>

/// Groups the curves and overrides nothing.
KW_PLAIN_PROVIDER(KdDbCurve_Extension, KdDbEntity_Extension)

KW_TABLE_PROVIDER(KdDb2dPolyline_Extension, KdDbCurve_Extension, KdDb2dPolyline)
KW_TABLE_PROVIDER(KdDb3dPolyline_Extension, KdDbCurve_Extension, KdDb3dPolyline)
KW_TABLE_PROVIDER(KdDbArc_Extension, KdDbCurve_Extension, KdDbArc)
KW_TABLE_PROVIDER(KdDbCircle_Extension, KdDbCurve_Extension, KdDbCircle)
KW_TABLE_PROVIDER(KdDbEllipse_Extension, KdDbCurve_Extension, KdDbEllipse)
KW_TABLE_PROVIDER(KdDbLine_Extension, KdDbCurve_Extension, KdDbLine)
KW_TABLE_PROVIDER(KdDbRay_Extension, KdDbCurve_Extension, KdDbRay)
KW_TABLE_PROVIDER(KdDbSpline_Extension, KdDbCurve_Extension, KdDbSpline)
KW_TABLE_PROVIDER(KdDbXline_Extension, KdDbCurve_Extension, KdDbXline)

/// Differs from the others in what it returns: 3 for a null entity, which it lists nothing for; and
/// for the two segment widths the host's status, so 0 where they are answered.
class KdDbPolyline_Extension
    : public TableProvider<KdDbPolyline_Extension, KdDbCurve_Extension, KdDbPolyline>
{
  public:
    static std::span<const PropertyRow> rows();

    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
    using SaysRows = KdDbPolyline_Extension; ///< as its table does
};

/// A helix is a curve to the host, but not to the protocol.
class KdDbHelix_Extension
    : public TableProvider<KdDbHelix_Extension, KdDbEntity_Extension, KdDbHelix>
{
  public:
    static std::span<const PropertyRow> rows();

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
    using SaysRows = KdDbHelix_Extension; ///< as its table does
    /// 15 for a null entity. A helix that has no conversion to a curve, as all have at present,
    /// leaves `length` alone.
    int getEntityTotalLength(const KdDbEntity* entity, double& length) const override;
};
