#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/all.h>

namespace {

struct ClassRow
{
    KdRxClass* (*desc)();
    const wchar_t* name;
    const wchar_t* parent;
    const wchar_t* dxfName;
};

// clang-format off
const ClassRow kClasses[] = {
    {KdDbCurve::desc, L"AcDbCurve", L"AcDbEntity", L""},
    {KdDbLine::desc, L"AcDbLine", L"AcDbCurve", L"LINE"},
    {KdDbCircle::desc, L"AcDbCircle", L"AcDbCurve", L"CIRCLE"},
    {KdDbArc::desc, L"AcDbArc", L"AcDbCurve", L"ARC"},
    {KdDbEllipse::desc, L"AcDbEllipse", L"AcDbCurve", L"ELLIPSE"},
    {KdDbSpline::desc, L"AcDbSpline", L"AcDbCurve", L"SPLINE"},
    {KdDbHelix::desc, L"AcDbHelix", L"AcDbSpline", L"HELIX"},
    {KdDbRay::desc, L"AcDbRay", L"AcDbCurve", L"RAY"},
    {KdDbXline::desc, L"AcDbXline", L"AcDbCurve", L"XLINE"},
    {KdDbPolyline::desc, L"AcDbPolyline", L"AcDbCurve", L"LWPOLYLINE"},
    {KdDb2dPolyline::desc, L"AcDb2dPolyline", L"AcDbCurve", L"POLYLINE"},
    {KdDb3dPolyline::desc, L"AcDb3dPolyline", L"AcDbCurve", L"POLYLINE"},
    {KdDbLeader::desc, L"AcDbLeader", L"AcDbCurve", L"LEADER"},

    {KdDbText::desc, L"AcDbText", L"AcDbEntity", L"TEXT"},
    {KdDbAttribute::desc, L"AcDbAttribute", L"AcDbText", L"ATTRIB"},
    {KdDbAttributeDefinition::desc, L"AcDbAttributeDefinition", L"AcDbText", L"ATTDEF"},
    {KdDbMText::desc, L"AcDbMText", L"AcDbEntity", L"MTEXT"},
    {KdDbFcf::desc, L"AcDbFcf", L"AcDbEntity", L"TOLERANCE"},
    {KdDbShape::desc, L"AcDbShape", L"AcDbEntity", L"SHAPE"},
    {KdDbArcAlignedText::desc, L"AcDbArcAlignedText", L"AcDbEntity", L"ARCALIGNEDTEXT"},
    {KdDbRText::desc, L"AcDbRText", L"AcDbEntity", L"RTEXT"},

    {KdDbPoint::desc, L"AcDbPoint", L"AcDbEntity", L"POINT"},
    {KdDbFace::desc, L"AcDbFace", L"AcDbEntity", L"3DFACE"},
    {KdDbSolid::desc, L"AcDbSolid", L"AcDbEntity", L"SOLID"},
    {KdDbTrace::desc, L"AcDbTrace", L"AcDbEntity", L"TRACE"},
    {KdDbMline::desc, L"AcDbMline", L"AcDbEntity", L"MLINE"},
    {KdDbHatch::desc, L"AcDbHatch", L"AcDbEntity", L"HATCH"},
    {KdDbMPolygon::desc, L"AcDbMPolygon", L"AcDbEntity", L"MPOLYGON"},
    {KdDbMLeader::desc, L"AcDbMLeader", L"AcDbEntity", L"MULTILEADER"},

    {KdDbBlockReference::desc, L"AcDbBlockReference", L"AcDbEntity", L"INSERT"},
    {KdDbMInsertBlock::desc, L"AcDbMInsertBlock", L"AcDbBlockReference", L"INSERT"},
    {KdDbTable::desc, L"AcDbTable", L"AcDbBlockReference", L"ACAD_TABLE"},

    {KdDbDimension::desc, L"AcDbDimension", L"AcDbEntity", L""},
    {KdDbAlignedDimension::desc, L"AcDbAlignedDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDbRotatedDimension::desc, L"AcDbRotatedDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDb2LineAngularDimension::desc, L"AcDb2LineAngularDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDb3PointAngularDimension::desc, L"AcDb3PointAngularDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDbDiametricDimension::desc, L"AcDbDiametricDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDbOrdinateDimension::desc, L"AcDbOrdinateDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDbRadialDimension::desc, L"AcDbRadialDimension", L"AcDbDimension", L"DIMENSION"},
    {KdDbArcDimension::desc, L"AcDbArcDimension", L"AcDbDimension", L"ARC_DIMENSION"},
    {KdDbRadialDimensionLarge::desc, L"AcDbRadialDimensionLarge", L"AcDbDimension", L"LARGE_RADIAL_DIMENSION"},

    {KdDbViewport::desc, L"AcDbViewport", L"AcDbEntity", L"VIEWPORT"},
    {KdDbImage::desc, L"AcDbImage", L"AcDbEntity", L""},
    {KdDbRasterImage::desc, L"AcDbRasterImage", L"AcDbImage", L"IMAGE"},
    {KdDbWipeout::desc, L"AcDbWipeout", L"AcDbRasterImage", L"WIPEOUT"},
    {KdDbFrame::desc, L"AcDbFrame", L"AcDbEntity", L""},
    {KdDbOleFrame::desc, L"AcDbOleFrame", L"AcDbFrame", L"OLEFRAME"},
    {KdDbOle2Frame::desc, L"AcDbOle2Frame", L"AcDbOleFrame", L"OLE2FRAME"},
    {KdDbProxyEntity::desc, L"AcDbProxyEntity", L"AcDbEntity", L"ACAD_PROXY_ENTITY"},

    {KdDb3dSolid::desc, L"AcDb3dSolid", L"AcDbEntity", L"3DSOLID"},
    {KdDbBody::desc, L"AcDbBody", L"AcDbEntity", L"BODY"},
    {KdDbRegion::desc, L"AcDbRegion", L"AcDbEntity", L"REGION"},
    {KdDbSurface::desc, L"AcDbSurface", L"AcDbEntity", L"SURFACE"},
    {KdDbExtrudedSurface::desc, L"AcDbExtrudedSurface", L"AcDbSurface", L"EXTRUDEDSURFACE"},
    {KdDbLoftedSurface::desc, L"AcDbLoftedSurface", L"AcDbSurface", L"LOFTEDSURFACE"},
    {KdDbPlaneSurface::desc, L"AcDbPlaneSurface", L"AcDbSurface", L"PLANESURFACE"},
    {KdDbRevolvedSurface::desc, L"AcDbRevolvedSurface", L"AcDbSurface", L"REVOLVEDSURFACE"},
    {KdDbSweptSurface::desc, L"AcDbSweptSurface", L"AcDbSurface", L"SWEPTSURFACE"},

    {KdDbPolyFaceMesh::desc, L"AcDbPolyFaceMesh", L"AcDbEntity", L"POLYLINE"},
    {KdDbPolygonMesh::desc, L"AcDbPolygonMesh", L"AcDbEntity", L"POLYLINE"},
    {KdDbSubDMesh::desc, L"AcDbSubDMesh", L"AcDbEntity", L"MESH"},
    {KdDbVertex::desc, L"AcDbVertex", L"AcDbEntity", L"VERTEX"},
    {KdDb2dVertex::desc, L"AcDb2dVertex", L"AcDbVertex", L"VERTEX"},
    {KdDb3dPolylineVertex::desc, L"AcDb3dPolylineVertex", L"AcDbVertex", L"VERTEX"},
    {KdDbPolygonMeshVertex::desc, L"AcDbPolygonMeshVertex", L"AcDbVertex", L"VERTEX"},
    {KdDbPolyFaceMeshVertex::desc, L"AcDbPolyFaceMeshVertex", L"AcDbVertex", L"VERTEX"},
    {KdDbFaceRecord::desc, L"AcDbFaceRecord", L"AcDbVertex", L"VERTEX"},
    {KdDbSequenceEnd::desc, L"AcDbSequenceEnd", L"AcDbEntity", L"SEQEND"},

    {KdDbUnderlayReference::desc, L"AcDbUnderlayReference", L"AcDbEntity", L""},
    {KdDbDgnReference::desc, L"AcDbDgnReference", L"AcDbUnderlayReference", L"DGNUNDERLAY"},
    {KdDbDwfReference::desc, L"AcDbDwfReference", L"AcDbUnderlayReference", L"DWFUNDERLAY"},
    {KdDbPdfReference::desc, L"AcDbPdfReference", L"AcDbUnderlayReference", L"PDFUNDERLAY"},
    {KdDbLight::desc, L"AcDbLight", L"AcDbEntity", L"LIGHT"},
    {KdDbSection::desc, L"AcDbSection", L"AcDbEntity", L"SECTIONOBJECT"},
    {KdDbGeoPositionMarker::desc, L"AcDbGeoPositionMarker", L"AcDbEntity", L"POSITIONMARKER"},
    {KdDbPointCloudEx::desc, L"AcDbPointCloudEx", L"AcDbEntity", L"ACDBPOINTCLOUDEX"},

    {KdDbBlockElementEntity::desc, L"AcDbBlockElementEntity", L"AcDbEntity", L""},
    {KdDbBlockParameterEntity::desc, L"AcDbBlockParameterEntity", L"AcDbBlockElementEntity", L""},
    {KdDbBlock1PtParameterEntity::desc, L"AcDbBlock1PtParameterEntity", L"AcDbBlockParameterEntity", L""},
    {KdDbBlockBasepointParameterEntity::desc, L"AcDbBlockBasepointParameterEntity", L"AcDbBlock1PtParameterEntity", L""},
    {KdDbBlockPointParameterEntity::desc, L"AcDbBlockPointParameterEntity", L"AcDbBlock1PtParameterEntity", L""},
    {KdDbBlockLookupParameterEntity::desc, L"AcDbBlockLookupParameterEntity", L"AcDbBlock1PtParameterEntity", L""},
    {KdDbBlockVisibilityParameterEntity::desc, L"AcDbBlockVisibilityParameterEntity", L"AcDbBlock1PtParameterEntity", L""},
    {KdDbBlock2PtParameterEntity::desc, L"AcDbBlock2PtParameterEntity", L"AcDbBlockParameterEntity", L""},
    {KdDbBlockAlignmentParameterEntity::desc, L"AcDbBlockAlignmentParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockFlipParameterEntity::desc, L"AcDbBlockFlipParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockLinearParameterEntity::desc, L"AcDbBlockLinearParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockPolarParameterEntity::desc, L"AcDbBlockPolarParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockRotationParameterEntity::desc, L"AcDbBlockRotationParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockXYParameterEntity::desc, L"AcDbBlockXYParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockConstraintTagEntity::desc, L"AcDbBlockConstraintTagEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockAngularConstraintTagEntity::desc, L"AcDbBlockAngularConstraintTagEntity", L"AcDbBlockConstraintTagEntity", L""},
    {KdDbBlockDiametricConstraintTagEntity::desc, L"AcDbBlockDiametricConstraintTagEntity", L"AcDbBlockConstraintTagEntity", L""},
    {KdDbBlockLinearConstraintTagEntity::desc, L"AcDbBlockLinearConstraintTagEntity", L"AcDbBlockConstraintTagEntity", L""},
    {KdDbBlockRadialConstraintTagEntity::desc, L"AcDbBlockRadialConstraintTagEntity", L"AcDbBlockConstraintTagEntity", L""},
    {KdDbBlockConstraintParameterEntity::desc, L"AcDbBlockConstraintParameterEntity", L"AcDbBlock2PtParameterEntity", L""},
    {KdDbBlockAngularConstraintParameterEntity::desc, L"AcDbBlockAngularConstraintParameterEntity", L"AcDbBlockConstraintParameterEntity", L""},
    {KdDbBlockDiametricConstraintParameterEntity::desc, L"AcDbBlockDiametricConstraintParameterEntity", L"AcDbBlockConstraintParameterEntity", L""},
    {KdDbBlockLinearConstraintParameterEntity::desc, L"AcDbBlockLinearConstraintParameterEntity", L"AcDbBlockConstraintParameterEntity", L""},
    {KdDbBlockRadialConstraintParameterEntity::desc, L"AcDbBlockRadialConstraintParameterEntity", L"AcDbBlockConstraintParameterEntity", L""},
    {KdDbBlockActionEntity::desc, L"AcDbBlockActionEntity", L"AcDbBlockElementEntity", L""},
    {KdDbBlockArrayActionEntity::desc, L"AcDbBlockArrayActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockFlipActionEntity::desc, L"AcDbBlockFlipActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockLookupActionEntity::desc, L"AcDbBlockLookupActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockMoveActionEntity::desc, L"AcDbBlockMoveActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockPolarStretchActionEntity::desc, L"AcDbBlockPolarStretchActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockStretchActionEntity::desc, L"AcDbBlockStretchActionEntity", L"AcDbBlockActionEntity", L""},
    {KdDbBlockActionEntityWithBasePt::desc, L"AcDbBlockActionEntityWithBasePt", L"AcDbBlockActionEntity", L""},
    {KdDbBlockRotateActionEntity::desc, L"AcDbBlockRotateActionEntity", L"AcDbBlockActionEntityWithBasePt", L""},
    {KdDbBlockScaleActionEntity::desc, L"AcDbBlockScaleActionEntity", L"AcDbBlockActionEntityWithBasePt", L""},
    {KdDbBlockGripEntity::desc, L"AcDbBlockGripEntity", L"AcDbBlockElementEntity", L""},
    {KdDbBlockAlignmentGripEntity::desc, L"AcDbBlockAlignmentGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockFlipGripEntity::desc, L"AcDbBlockFlipGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockLinearGripEntity::desc, L"AcDbBlockLinearGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockLookupGripEntity::desc, L"AcDbBlockLookupGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockPolarGripEntity::desc, L"AcDbBlockPolarGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockRotationGripEntity::desc, L"AcDbBlockRotationGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockVisibilityGripEntity::desc, L"AcDbBlockVisibilityGripEntity", L"AcDbBlockGripEntity", L""},
    {KdDbBlockXYGripEntity::desc, L"AcDbBlockXYGripEntity", L"AcDbBlockGripEntity", L""},
};

/// Classes that properties are attached to.
const wchar_t* const kClassesWithProperties[] = {
    L"AcDb3dSolid", L"AcDbBody", L"AcDbRegion", L"AcDb2dPolyline", L"AcDb3dPolyline", L"AcDbArc",
    L"AcDbAttributeDefinition", L"AcDbAttribute", L"AcDbBlockReference", L"AcDbCircle",
    L"AcDbCurve", L"AcDbDgnReference", L"AcDbDimension", L"AcDbEllipse", L"AcDbEntity", L"AcDbFace",
    L"AcDbFaceRecord", L"AcDbFcf", L"AcDbFrame", L"AcDbHatch", L"AcDbImage", L"AcDbLeader",
    L"AcDbMLeader", L"AcDbLine", L"AcDbMInsertBlock", L"AcDbMline", L"AcDbMPolygon", L"AcDbMText",
    L"AcDbOleFrame", L"AcDbPoint", L"AcDbPolyFaceMesh", L"AcDbPolygonMesh", L"AcDbPolyline",
    L"AcDbProxyEntity", L"AcDbRasterImage", L"AcDbRay", L"AcDbSection", L"AcDbShape", L"AcDbSolid",
    L"AcDbSpline", L"AcDbSurface", L"AcDbTable", L"AcDbText", L"AcDbTrace", L"AcDbVertex",
    L"AcDbViewport", L"AcDbWipeout", L"AcDbXline", L"AcDbExtrudedSurface", L"AcDbLoftedSurface",
    L"AcDbPlaneSurface", L"AcDbRevolvedSurface", L"AcDbSweptSurface", L"AcDbHelix",
    L"AcDb2LineAngularDimension", L"AcDb3PointAngularDimension", L"AcDbAlignedDimension",
    L"AcDbArcDimension", L"AcDbDiametricDimension", L"AcDbOrdinateDimension",
    L"AcDbRadialDimension", L"AcDbRadialDimensionLarge", L"AcDbRotatedDimension",
    L"AcDbBlockElementEntity", L"AcDbBlockParameterEntity", L"AcDbBlock1PtParameterEntity",
    L"AcDbBlockPointParameterEntity", L"AcDbBlock2PtParameterEntity",
    L"AcDbBlockLinearParameterEntity", L"AcDbBlockPolarParameterEntity",
    L"AcDbBlockXYParameterEntity", L"AcDbBlockRotationParameterEntity",
    L"AcDbBlockAlignmentParameterEntity", L"AcDbBlockFlipParameterEntity",
    L"AcDbBlockVisibilityParameterEntity", L"AcDbBlockLookupParameterEntity",
    L"AcDbBlockBasepointParameterEntity", L"AcDbBlockGripEntity", L"AcDbBlockActionEntity",
    L"AcDbBlockActionEntityWithBasePt", L"AcDbBlockMoveActionEntity", L"AcDbBlockScaleActionEntity",
    L"AcDbBlockStretchActionEntity", L"AcDbBlockPolarStretchActionEntity",
    L"AcDbBlockRotateActionEntity", L"AcDbBlockFlipActionEntity", L"AcDbBlockLookupActionEntity",
    L"AcDbBlockArrayActionEntity", L"AcDbBlockRadialConstraintTagEntity",
    L"AcDbBlockRadialConstraintParameterEntity", L"AcDbBlockDiametricConstraintTagEntity",
    L"AcDbBlockDiametricConstraintParameterEntity", L"AcDbBlockLinearConstraintTagEntity",
    L"AcDbBlockLinearConstraintParameterEntity", L"AcDbBlockAngularConstraintTagEntity",
    L"AcDbBlockAngularConstraintParameterEntity", L"AcDbPointCloudEx", L"AcDbGeoPositionMarker",
};

/// Names by which the kinds of entities in a drawing are told to a user, in capitals of their own.
const wchar_t* const kClassesWithDisplayNames[] = {
    L"AcDbFace", L"AcDbArc", L"AcDbAttributeDefinition", L"AcDbAttribute", L"AcDbCircle",
    L"AcDbDimension", L"AcDbEllipse", L"AcDbRasterImage", L"AcDbLeader", L"AcDbLine", L"AcDbMLine",
    L"AcDbMText", L"AcDbPolyline", L"AcDbPoint", L"AcDbRay", L"AcDbShape", L"AcDbSolid",
    L"AcDbSpline", L"AcDbText", L"AcDbFcf", L"AcDbTrace", L"AcDbViewport", L"AcDbXline",
    L"AcDbHatch", L"AcDb3dSolid", L"AcDbRegion", L"AcDbBody", L"AcDbProxyEntity", L"AcDbSubDMesh",
    L"AcDbArcAlignedText", L"AcDbRText", L"AcDbWipeout", L"AcDbOrdinateDimension",
    L"AcDbArcDimension", L"AcDbOle2Frame", L"AcDb2DPolyline", L"AcDb3DPolyline", L"AcDbPolygonMesh",
    L"AcDbPolyFaceMesh", L"AcDbHelix", L"AcDbMLeader", L"AcDbTable", L"AcDbSurface",
    L"AcDbPlaneSurface", L"AcDbExtrudedSurface", L"AcDbRevolvedSurface", L"AcDbSweptSurface",
    L"AcDbLoftedSurface", L"AcDbLight", L"AcDbMInsertBlock", L"AcDbBlockAlignmentParameterEntity",
    L"AcDbBlockBasepointParameterEntity", L"AcDbBlockFlipParameterEntity",
    L"AcDbBlockLinearParameterEntity", L"AcDbBlockLookupParameterEntity",
    L"AcDbBlockPointParameterEntity", L"AcDbBlockPolarParameterEntity",
    L"AcDbBlockRotationParameterEntity", L"AcDbBlockXYParameterEntity",
    L"AcDbBlockVisibilityParameterEntity", L"AcDbBlockArrayActionEntity",
    L"AcDbBlockFlipActionEntity", L"AcDbBlockLookupActionEntity", L"AcDbBlockMoveActionEntity",
    L"AcDbBlockPolarStretchActionEntity", L"AcDbBlockScaleActionEntity",
    L"AcDbBlockStretchActionEntity", L"AcDbBlockRotateActionEntity",
    L"AcDbBlockAlignmentGripEntity", L"AcDbBlockFlipGripEntity", L"AcDbBlockLinearGripEntity",
    L"AcDbBlockLookupGripEntity", L"AcDbBlockPolarGripEntity", L"AcDbBlockVisibilityGripEntity",
    L"AcDbBlockXYGripEntity", L"AcDbBlockRotationGripEntity", L"AcDbPdfReference",
    L"AcDbDwfReference", L"AcDbRadialDimensionLarge",
};

/// Classes that only group others.
const wchar_t* const kGroups[] = {
    L"AcDbEntity", L"AcDbCurve", L"AcDbDimension", L"AcDbImage", L"AcDbFrame", L"AcDbVertex",
    L"AcDbUnderlayReference", L"AcDbBlockElementEntity", L"AcDbBlockParameterEntity",
    L"AcDbBlock1PtParameterEntity", L"AcDbBlock2PtParameterEntity", L"AcDbBlockConstraintTagEntity",
    L"AcDbBlockConstraintParameterEntity", L"AcDbBlockActionEntity",
    L"AcDbBlockActionEntityWithBasePt", L"AcDbBlockGripEntity",
};
// clang-format on

std::vector<KdRxClass*> entityClasses()
{
    std::vector<KdRxClass*> classes = kdrxAllClasses();
    std::erase_if(classes, [](const KdRxClass* rxClass) {
        return !rxClass->isDerivedFrom(KdDbEntity::desc());
    });
    return classes;
}

std::string narrow(const std::wstring& name)
{
    return {name.begin(), name.end()};
}

class EntityClass : public testing::TestWithParam<ClassRow>
{
};

TEST_P(EntityClass, HasItsNamesAndItsParent)
{
    const KdRxClass* rxClass = GetParam().desc();
    EXPECT_STREQ(rxClass->name(), GetParam().name);
    EXPECT_STREQ(rxClass->dxfName(), GetParam().dxfName);
    ASSERT_NE(rxClass->myParent(), nullptr);
    EXPECT_STREQ(rxClass->myParent()->name(), GetParam().parent);
    EXPECT_EQ(kdrxFindKdRxClass(GetParam().name), rxClass);
}

INSTANTIATE_TEST_SUITE_P(All, EntityClass, testing::ValuesIn(kClasses),
                         [](const auto& row) { return narrow(row.param.name); });

TEST(EntityClasses, AreAllInTheTableOfThisTest)
{
    for (const KdRxClass* rxClass : entityClasses()) {
        const bool known =
            rxClass == KdDbEntity::desc() ||
            std::ranges::any_of(kClasses, [&](const auto& row) { return row.desc() == rxClass; });
        EXPECT_TRUE(known) << narrow(rxClass->name());
    }
}

TEST(EntityClasses, IncludeAllThatPropertiesAreAttachedTo)
{
    ASSERT_EQ(std::size(kClassesWithProperties), 98u);
    for (const wchar_t* name : kClassesWithProperties) {
        const KdRxClass* rxClass = kdrxFindKdRxClass(name);
        ASSERT_NE(rxClass, nullptr) << narrow(name);
        EXPECT_TRUE(rxClass->isDerivedFrom(KdDbEntity::desc())) << narrow(name);
    }
}

TEST(EntityClasses, IncludeAllWithADisplayNameApartFromTheCaseOfLetters)
{
    const std::vector<KdRxClass*> classes = entityClasses();
    for (const wchar_t* name : kClassesWithDisplayNames) {
        EXPECT_TRUE(std::ranges::any_of(classes, [&](const KdRxClass* rxClass) {
            return KdNameEqual()(rxClass->name(), name);
        })) << narrow(name);
    }
}

TEST(EntityClasses, MakeEntitiesOfTheirOwnClassUnlessTheyOnlyGroupOthers)
{
    for (KdRxClass* rxClass : entityClasses()) {
        const bool isGroup = std::ranges::any_of(kGroups, [&](const wchar_t* name) {
            return std::wstring_view(name) == rxClass->name();
        });
        const std::unique_ptr<KdRxObject> object(rxClass->create());
        ASSERT_EQ(object == nullptr, isGroup) << narrow(rxClass->name());
        if (object) {
            EXPECT_EQ(object->isA(), rxClass) << narrow(rxClass->name());
        }
    }
}

TEST(EntityClasses, GiveNewEntitiesTheCommonDefaults)
{
    for (KdRxClass* rxClass : entityClasses()) {
        const std::unique_ptr<KdRxObject> object(rxClass->create());
        if (!object)
            continue;
        const auto& entity = static_cast<const KdDbEntity&>(*object);
        EXPECT_EQ(entity.linetypeScale(), 1.0) << narrow(rxClass->name());
        EXPECT_EQ(entity.lineWeight(), -1) << narrow(rxClass->name());
        EXPECT_FALSE(entity.isInvisible()) << narrow(rxClass->name());
    }
}

} // namespace
