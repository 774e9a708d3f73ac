#include <command/registration.h>

#include <entities/all.h>

#include <blocks/block_element_providers.h>
#include <blocks/block_reference_providers.h>
#include <dimensions/dimension_providers.h>
#include <dimensions/leader_providers.h>
#include <providers/curve_providers.h>
#include <providers/hatch_provider.h>
#include <providers/lasting_row.h>
#include <providers/other_providers.h>
#include <providers/plain_providers.h>
#include <providers/text_providers.h>
#include <providers/viewport_provider.h>
#include <values/init_order.h>

// One instance of each provider class. They live as long as the module.
#define KW_INSTANCE(Provider)                                                                      \
    static Provider g_##Provider __attribute__((init_priority(kInitProviders)))
KW_INSTANCE(KdDb3dSolid_Extension);
KW_INSTANCE(KdDbBody_Extension);
KW_INSTANCE(KdDbRegion_Extension);
KW_INSTANCE(KdDb2dPolyline_Extension);
KW_INSTANCE(KdDb3dPolyline_Extension);
KW_INSTANCE(KdDbArc_Extension);
KW_INSTANCE(KdDbAttributeDefinition_Extension);
KW_INSTANCE(KdDbAttribute_Extension);
KW_INSTANCE(KdDbBlockReference_Extension);
KW_INSTANCE(KdDbCircle_Extension);
KW_INSTANCE(KdDbCurve_Extension);
KW_INSTANCE(KdDbDgnReference_Extension);
KW_INSTANCE(KdDbDimension_Extension);
KW_INSTANCE(KdDbEllipse_Extension);
KW_INSTANCE(KdDbEntity_Extension);
KW_INSTANCE(KdDbFace_Extension);
KW_INSTANCE(KdDbFaceRecord_Extension);
KW_INSTANCE(KdDbFcf_Extension);
KW_INSTANCE(KdDbFrame_Extension);
KW_INSTANCE(KdDbHatch_Extension);
KW_INSTANCE(KdDbImage_Extension);
KW_INSTANCE(KdDbLeader_Extension);
KW_INSTANCE(KdDbMLeader_Extension);
KW_INSTANCE(KdDbLine_Extension);
KW_INSTANCE(KdDbMInsertBlock_Extension);
KW_INSTANCE(KdDbMline_Extension);
KW_INSTANCE(KdDbMPolygon_Extension);
KW_INSTANCE(KdDbMText_Extension);
KW_INSTANCE(KdDbOleFrame_Extension);
KW_INSTANCE(KdDbPoint_Extension);
KW_INSTANCE(KdDbPolyFaceMesh_Extension);
KW_INSTANCE(KdDbPolygonMesh_Extension);
KW_INSTANCE(KdDbPolyline_Extension);
KW_INSTANCE(KdDbProxyEntity_Extension);
KW_INSTANCE(KdDbRasterImage_Extension);
KW_INSTANCE(KdDbRay_Extension);
KW_INSTANCE(KdDbSection_Extension);
KW_INSTANCE(KdDbShape_Extension);
KW_INSTANCE(KdDbSolid_Extension);
KW_INSTANCE(KdDbSpline_Extension);
KW_INSTANCE(KdDbSurface_Extension);
KW_INSTANCE(KdDbTable_Extension);
KW_INSTANCE(KdDbText_Extension);
KW_INSTANCE(KdDbTrace_Extension);
KW_INSTANCE(KdDbVertex_Extension);
KW_INSTANCE(KdDbViewport_Extension);
KW_INSTANCE(KdDbWipeout_Extension);
KW_INSTANCE(KdDbXline_Extension);
KW_INSTANCE(KdDbExtrudedSurface_Extension);
KW_INSTANCE(KdDbLoftedSurface_Extension);
KW_INSTANCE(KdDbPlaneSurface_Extension);
KW_INSTANCE(KdDbRevolvedSurface_Extension);
KW_INSTANCE(KdDbSweptSurface_Extension);
KW_INSTANCE(KdDbHelix_Extension);
KW_INSTANCE(KdDbAngularDimension_Extension);
KW_INSTANCE(KdDb3PointAngularDimension_Extension);
KW_INSTANCE(KdDbAlignedDimension_Extension);
KW_INSTANCE(KdDbArcDimension_Extension);
KW_INSTANCE(KdDbDiametricDimension_Extension);
KW_INSTANCE(KdDbOrdinateDimension_Extension);
KW_INSTANCE(KdDbRadialDimension_Extension);
KW_INSTANCE(KdDbRadialLargeDimension_Extension);
KW_INSTANCE(KdDbRotatedDimension_Extension);
KW_INSTANCE(KdDbBlockElementEntity_Extension);
KW_INSTANCE(KdDbBlockParameterEntity_Extension);
KW_INSTANCE(KdDbBlock1PtParameterEntity_Extension);
KW_INSTANCE(KdDbBlockPointParameterEntity_Extension);
KW_INSTANCE(KdDbBlock2PtParameterEntity_Extension);
KW_INSTANCE(KdDbBlockLinearParameterEntity_Extension);
KW_INSTANCE(KdDbBlockPolarParameterEntity_Extension);
KW_INSTANCE(KdDbBlockXYParameterEntity_Extension);
KW_INSTANCE(KdDbBlockRotationParameterEntity_Extension);
KW_INSTANCE(KdDbBlockAlignmentParameterEntity_Extension);
KW_INSTANCE(KdDbBlockFlipParameterEntity_Extension);
KW_INSTANCE(KdDbBlockVisibilityParameterEntity_Extension);
KW_INSTANCE(KdDbBlockLookupParameterEntity_Extension);
KW_INSTANCE(KdDbBlockBasepointParameterEntity_Extension);
KW_INSTANCE(KdDbBlockGripEntity_Extension);
KW_INSTANCE(KdDbBlockActionEntity_Extension);
KW_INSTANCE(KdDbBlockActionEntityWithBasePt_Extension);
KW_INSTANCE(KdDbBlockMoveActionEntity_Extension);
KW_INSTANCE(KdDbBlockScaleActionEntity_Extension);
KW_INSTANCE(KdDbBlockStretchActionEntity_Extension);
KW_INSTANCE(KdDbBlockPolarStretchActionEntity_Extension);
KW_INSTANCE(KdDbBlockRotateActionEntity_Extension);
KW_INSTANCE(KdDbBlockFlipActionEntity_Extension);
KW_INSTANCE(KdDbBlockLookupActionEntity_Extension);
KW_INSTANCE(KdDbBlockArrayActionEntity_Extension);
KW_INSTANCE(KdDbBlockRadialConstraintTagEntity_Extension);
KW_INSTANCE(KdDbBlockDiametricConstraintTagEntity_Extension);
KW_INSTANCE(KdDbBlockLinearConstraintTagEntity_Extension);
KW_INSTANCE(KdDbBlockAngularConstraintTagEntity_Extension);
KW_INSTANCE(KdDbPointCloudEx_Extension);
KW_INSTANCE(KdDbGeoPositionMarker_Extension);
// These stay unattached: their entities answer through the provider they inherit.
[[maybe_unused]] KW_INSTANCE(KdDbArcAlignedText_Extension);
[[maybe_unused]] KW_INSTANCE(KdDbDwfReference_Extension);
[[maybe_unused]] KW_INSTANCE(KdDbLight_Extension);
[[maybe_unused]] KW_INSTANCE(KdDbUnderlayReference_Extension);
#undef KW_INSTANCE

namespace {

template <class Provider>
LastingRow lastingRowAs(KdDbEntityPE& provider, const KdRxClass& rxClass, const KdString& key)
{
    return lastingRowOf(static_cast<Provider&>(provider), rxClass, key);
}

// clang-format off
#define KW_ROW(Host, Provider) {Host::desc, &g_##Provider, lastingRowAs<Provider>},
// The rule is that a class gets the provider of its own name.
constexpr Registration kRegistrations[] = {
    KW_ROW(KdDb3dSolid, KdDb3dSolid_Extension)
    KW_ROW(KdDbBody, KdDbBody_Extension)
    KW_ROW(KdDbRegion, KdDbRegion_Extension)
    KW_ROW(KdDb2dPolyline, KdDb2dPolyline_Extension)
    KW_ROW(KdDb3dPolyline, KdDb3dPolyline_Extension)
    KW_ROW(KdDbArc, KdDbArc_Extension)
    KW_ROW(KdDbAttributeDefinition, KdDbAttributeDefinition_Extension)
    KW_ROW(KdDbAttribute, KdDbAttribute_Extension)
    KW_ROW(KdDbBlockReference, KdDbBlockReference_Extension)
    KW_ROW(KdDbCircle, KdDbCircle_Extension)
    KW_ROW(KdDbCurve, KdDbCurve_Extension)
    KW_ROW(KdDbDgnReference, KdDbDgnReference_Extension)
    KW_ROW(KdDbDimension, KdDbDimension_Extension)
    KW_ROW(KdDbEllipse, KdDbEllipse_Extension)
    KW_ROW(KdDbEntity, KdDbEntity_Extension)
    KW_ROW(KdDbFace, KdDbFace_Extension)
    KW_ROW(KdDbFaceRecord, KdDbFaceRecord_Extension)
    KW_ROW(KdDbFcf, KdDbFcf_Extension)
    KW_ROW(KdDbFrame, KdDbFrame_Extension)
    KW_ROW(KdDbHatch, KdDbHatch_Extension)
    KW_ROW(KdDbImage, KdDbImage_Extension)
    KW_ROW(KdDbLeader, KdDbLeader_Extension)
    KW_ROW(KdDbMLeader, KdDbMLeader_Extension)
    KW_ROW(KdDbLine, KdDbLine_Extension)
    KW_ROW(KdDbMInsertBlock, KdDbMInsertBlock_Extension)
    KW_ROW(KdDbMline, KdDbMline_Extension)
    KW_ROW(KdDbMPolygon, KdDbMPolygon_Extension)
    KW_ROW(KdDbMText, KdDbMText_Extension)
    KW_ROW(KdDbOleFrame, KdDbOleFrame_Extension)
    KW_ROW(KdDbPoint, KdDbPoint_Extension)
    KW_ROW(KdDbPolyFaceMesh, KdDbPolyFaceMesh_Extension)
    KW_ROW(KdDbPolygonMesh, KdDbPolygonMesh_Extension)
    KW_ROW(KdDbPolyline, KdDbPolyline_Extension)
    KW_ROW(KdDbProxyEntity, KdDbProxyEntity_Extension)
    KW_ROW(KdDbRasterImage, KdDbRasterImage_Extension)
    KW_ROW(KdDbRay, KdDbRay_Extension)
    KW_ROW(KdDbSection, KdDbSection_Extension)
    KW_ROW(KdDbShape, KdDbShape_Extension)
    KW_ROW(KdDbSolid, KdDbSolid_Extension)
    KW_ROW(KdDbSpline, KdDbSpline_Extension)
    KW_ROW(KdDbSurface, KdDbSurface_Extension)
    KW_ROW(KdDbTable, KdDbTable_Extension)
    KW_ROW(KdDbText, KdDbText_Extension)
    KW_ROW(KdDbTrace, KdDbTrace_Extension)
    KW_ROW(KdDbVertex, KdDbVertex_Extension)
    KW_ROW(KdDbViewport, KdDbViewport_Extension)
    KW_ROW(KdDbWipeout, KdDbWipeout_Extension)
    KW_ROW(KdDbXline, KdDbXline_Extension)
    KW_ROW(KdDbExtrudedSurface, KdDbExtrudedSurface_Extension)
    KW_ROW(KdDbLoftedSurface, KdDbLoftedSurface_Extension)
    KW_ROW(KdDbPlaneSurface, KdDbPlaneSurface_Extension)
    KW_ROW(KdDbRevolvedSurface, KdDbRevolvedSurface_Extension)
    KW_ROW(KdDbSweptSurface, KdDbSweptSurface_Extension)
    KW_ROW(KdDbHelix, KdDbHelix_Extension)
    KW_ROW(KdDb2LineAngularDimension, KdDbAngularDimension_Extension) // as intended
    KW_ROW(KdDb3PointAngularDimension, KdDb3PointAngularDimension_Extension)
    KW_ROW(KdDbAlignedDimension, KdDbAlignedDimension_Extension)
    KW_ROW(KdDbArcDimension, KdDbArcDimension_Extension)
    KW_ROW(KdDbDiametricDimension, KdDbDiametricDimension_Extension)
    KW_ROW(KdDbOrdinateDimension, KdDbOrdinateDimension_Extension)
    KW_ROW(KdDbRadialDimension, KdDbRadialDimension_Extension)
    KW_ROW(KdDbRadialDimensionLarge, KdDbRadialLargeDimension_Extension) // as intended
    KW_ROW(KdDbRotatedDimension, KdDbRotatedDimension_Extension)
    KW_ROW(KdDbBlockElementEntity, KdDbBlockElementEntity_Extension)
    KW_ROW(KdDbBlockParameterEntity, KdDbBlockParameterEntity_Extension)
    KW_ROW(KdDbBlock1PtParameterEntity, KdDbBlock1PtParameterEntity_Extension)
    KW_ROW(KdDbBlockPointParameterEntity, KdDbBlockPointParameterEntity_Extension)
    KW_ROW(KdDbBlock2PtParameterEntity, KdDbBlock2PtParameterEntity_Extension)
    KW_ROW(KdDbBlockLinearParameterEntity, KdDbBlockLinearParameterEntity_Extension)
    KW_ROW(KdDbBlockPolarParameterEntity, KdDbBlockPolarParameterEntity_Extension)
    KW_ROW(KdDbBlockXYParameterEntity, KdDbBlockXYParameterEntity_Extension)
    KW_ROW(KdDbBlockRotationParameterEntity, KdDbBlockRotationParameterEntity_Extension)
    KW_ROW(KdDbBlockAlignmentParameterEntity, KdDbBlockAlignmentParameterEntity_Extension)
    KW_ROW(KdDbBlockFlipParameterEntity, KdDbBlockFlipParameterEntity_Extension)
    KW_ROW(KdDbBlockVisibilityParameterEntity, KdDbBlockVisibilityParameterEntity_Extension)
    KW_ROW(KdDbBlockLookupParameterEntity, KdDbBlockLookupParameterEntity_Extension)
    KW_ROW(KdDbBlockBasepointParameterEntity, KdDbBlockBasepointParameterEntity_Extension)
    KW_ROW(KdDbBlockGripEntity, KdDbBlockGripEntity_Extension)
    KW_ROW(KdDbBlockActionEntity, KdDbBlockActionEntity_Extension)
    KW_ROW(KdDbBlockActionEntityWithBasePt, KdDbBlockActionEntityWithBasePt_Extension)
    KW_ROW(KdDbBlockMoveActionEntity, KdDbBlockMoveActionEntity_Extension)
    KW_ROW(KdDbBlockScaleActionEntity, KdDbBlockScaleActionEntity_Extension)
    KW_ROW(KdDbBlockStretchActionEntity, KdDbBlockStretchActionEntity_Extension)
    KW_ROW(KdDbBlockPolarStretchActionEntity, KdDbBlockPolarStretchActionEntity_Extension)
    KW_ROW(KdDbBlockRotateActionEntity, KdDbBlockRotateActionEntity_Extension)
    KW_ROW(KdDbBlockFlipActionEntity, KdDbBlockFlipActionEntity_Extension)
    KW_ROW(KdDbBlockLookupActionEntity, KdDbBlockLookupActionEntity_Extension)
    KW_ROW(KdDbBlockArrayActionEntity, KdDbBlockArrayActionEntity_Extension)
    KW_ROW(KdDbBlockRadialConstraintTagEntity, KdDbBlockRadialConstraintTagEntity_Extension)
    KW_ROW(KdDbBlockRadialConstraintParameterEntity, KdDbBlockRadialConstraintTagEntity_Extension) // as intended
    KW_ROW(KdDbBlockDiametricConstraintTagEntity, KdDbBlockDiametricConstraintTagEntity_Extension)
    KW_ROW(KdDbBlockDiametricConstraintParameterEntity, KdDbBlockDiametricConstraintTagEntity_Extension) // as intended
    KW_ROW(KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintTagEntity_Extension)
    KW_ROW(KdDbBlockLinearConstraintParameterEntity, KdDbBlockLinearConstraintTagEntity_Extension) // as intended
    KW_ROW(KdDbBlockAngularConstraintTagEntity, KdDbBlockAngularConstraintTagEntity_Extension)
    KW_ROW(KdDbBlockAngularConstraintParameterEntity, KdDbBlockAngularConstraintTagEntity_Extension) // as intended
    KW_ROW(KdDbPointCloudEx, KdDbPointCloudEx_Extension)
    KW_ROW(KdDbGeoPositionMarker, KdDbGeoPositionMarker_Extension)
};
#undef KW_ROW
// clang-format on

void detach(const Registration& row)
{
    row.hostClass()->delX(KdDbEntityPE::desc());
}

} // namespace

std::span<const Registration> registrations()
{
    return kRegistrations;
}

LastingRow lastingRow(KdDbEntityPE& provider, const KdRxClass& rxClass, const KdString& key)
{
    for (const Registration& row : kRegistrations) {
        if (row.provider == &provider)
            return row.lastingRow(provider, rxClass, key);
    }
    return std::nullopt;
}

void addXs()
{
    for (const Registration& row : kRegistrations)
        row.hostClass()->addX(KdDbEntityPE::desc(), row.provider);
}

void delXs()
{
    for (const Registration& row : kRegistrations) {
        detach(row);
        if (row.hostClass == KdDbMline::desc)
            detach(row);
    }
}
