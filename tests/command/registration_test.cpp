#include <command/registration.h>

#include <algorithm>
#include <set>
#include <typeinfo>

#include <entities/all.h>

#include <blocks/block_element_providers.h>
#include <blocks/block_reference_providers.h>
#include <command/entry.h>
#include <dimensions/dimension_providers.h>
#include <dimensions/leader_providers.h>
#include <providers/curve_providers.h>
#include <providers/hatch_provider.h>
#include <providers/other_providers.h>
#include <providers/plain_providers.h>
#include <providers/text_providers.h>
#include <providers/viewport_provider.h>

#include "support.h"

using namespace command_test;

namespace {

struct ExpectedRow
{
    const char* name;
    KdRxClass* (*hostClass)();
    const std::type_info* provider;
};

// clang-format off
#define ROW_WITH(host, extension) {#host, KdDb##host::desc, &typeid(KdDb##extension##_Extension)},
#define ROW(host) ROW_WITH(host, host)
const ExpectedRow kExpected[] = {
    ROW(3dSolid) ROW(Body) ROW(Region) ROW(2dPolyline) ROW(3dPolyline) ROW(Arc)
    ROW(AttributeDefinition) ROW(Attribute) ROW(BlockReference) ROW(Circle) ROW(Curve)
    ROW(DgnReference) ROW(Dimension) ROW(Ellipse) ROW(Entity) ROW(Face) ROW(FaceRecord) ROW(Fcf)
    ROW(Frame) ROW(Hatch) ROW(Image) ROW(Leader) ROW(MLeader) ROW(Line) ROW(MInsertBlock) ROW(Mline)
    ROW(MPolygon) ROW(MText) ROW(OleFrame) ROW(Point) ROW(PolyFaceMesh) ROW(PolygonMesh)
    ROW(Polyline) ROW(ProxyEntity) ROW(RasterImage) ROW(Ray) ROW(Section) ROW(Shape) ROW(Solid)
    ROW(Spline) ROW(Surface) ROW(Table) ROW(Text) ROW(Trace) ROW(Vertex) ROW(Viewport) ROW(Wipeout)
    ROW(Xline) ROW(ExtrudedSurface) ROW(LoftedSurface) ROW(PlaneSurface) ROW(RevolvedSurface)
    ROW(SweptSurface) ROW(Helix)
    ROW_WITH(2LineAngularDimension, AngularDimension)
    ROW(3PointAngularDimension) ROW(AlignedDimension) ROW(ArcDimension) ROW(DiametricDimension)
    ROW(OrdinateDimension) ROW(RadialDimension)
    ROW_WITH(RadialDimensionLarge, RadialLargeDimension)
    ROW(RotatedDimension)
    ROW(BlockElementEntity) ROW(BlockParameterEntity) ROW(Block1PtParameterEntity)
    ROW(BlockPointParameterEntity) ROW(Block2PtParameterEntity) ROW(BlockLinearParameterEntity)
    ROW(BlockPolarParameterEntity) ROW(BlockXYParameterEntity) ROW(BlockRotationParameterEntity)
    ROW(BlockAlignmentParameterEntity) ROW(BlockFlipParameterEntity)
    ROW(BlockVisibilityParameterEntity) ROW(BlockLookupParameterEntity)
    ROW(BlockBasepointParameterEntity) ROW(BlockGripEntity) ROW(BlockActionEntity)
    ROW(BlockActionEntityWithBasePt) ROW(BlockMoveActionEntity) ROW(BlockScaleActionEntity)
    ROW(BlockStretchActionEntity) ROW(BlockPolarStretchActionEntity) ROW(BlockRotateActionEntity)
    ROW(BlockFlipActionEntity) ROW(BlockLookupActionEntity) ROW(BlockArrayActionEntity)
    ROW(BlockRadialConstraintTagEntity)
    ROW_WITH(BlockRadialConstraintParameterEntity, BlockRadialConstraintTagEntity)
    ROW(BlockDiametricConstraintTagEntity)
    ROW_WITH(BlockDiametricConstraintParameterEntity, BlockDiametricConstraintTagEntity)
    ROW(BlockLinearConstraintTagEntity)
    ROW_WITH(BlockLinearConstraintParameterEntity, BlockLinearConstraintTagEntity)
    ROW(BlockAngularConstraintTagEntity)
    ROW_WITH(BlockAngularConstraintParameterEntity, BlockAngularConstraintTagEntity)
    ROW(PointCloudEx) ROW(GeoPositionMarker)
};
#undef ROW
#undef ROW_WITH
// clang-format on

KdRxObject* attachedTo(const KdRxClass* hostClass)
{
    return hostClass->getX(KdDbEntityPE::desc());
}

template <class Provider>
bool isOfType(const KdRxObject* provider)
{
    return provider && typeid(*provider) == typeid(Provider);
}

class RegistrationTable : public CommandTest
{
};

TEST_F(RegistrationTable, HasNinetyEightRows)
{
    EXPECT_EQ(std::size(kExpected), 98u);
    EXPECT_EQ(registrations().size(), 98u);
}

TEST_F(RegistrationTable, TiesEachClassToItsProviderInOrder)
{
    ASSERT_EQ(registrations().size(), std::size(kExpected));
    for (std::size_t i = 0; i < std::size(kExpected); ++i) {
        const Registration& row = registrations()[i];
        EXPECT_EQ(row.hostClass(), kExpected[i].hostClass()) << kExpected[i].name;
        EXPECT_EQ(typeid(*row.provider), *kExpected[i].provider) << kExpected[i].name;
    }
}

TEST_F(RegistrationTable, IsAttachedByInitialising)
{
    for (const Registration& row : registrations())
        EXPECT_EQ(attachedTo(row.hostClass()), row.provider) << row.hostClass()->name();
}

TEST_F(RegistrationTable, AttachesNothingToOtherClasses)
{
    std::set<const KdRxClass*> listed;
    for (const Registration& row : registrations())
        listed.insert(row.hostClass());
    for (const KdRxClass* rxClass : kdrxAllClasses()) {
        if (!listed.contains(rxClass)) {
            EXPECT_EQ(attachedTo(rxClass), nullptr) << rxClass->name();
        }
    }
}

TEST_F(RegistrationTable, SharesProvidersBetweenConstraintTagsAndParametersAlone)
{
    std::set<const KdRxObject*> providers;
    for (const Registration& row : registrations())
        providers.insert(row.provider);
    EXPECT_EQ(providers.size(), 94u);
    EXPECT_EQ(attachedTo(KdDbBlockRadialConstraintParameterEntity::desc()),
              attachedTo(KdDbBlockRadialConstraintTagEntity::desc()));
    EXPECT_EQ(attachedTo(KdDbBlockDiametricConstraintParameterEntity::desc()),
              attachedTo(KdDbBlockDiametricConstraintTagEntity::desc()));
    EXPECT_EQ(attachedTo(KdDbBlockLinearConstraintParameterEntity::desc()),
              attachedTo(KdDbBlockLinearConstraintTagEntity::desc()));
    EXPECT_EQ(attachedTo(KdDbBlockAngularConstraintParameterEntity::desc()),
              attachedTo(KdDbBlockAngularConstraintTagEntity::desc()));
}

template <class Host>
class WithoutProviderOfItsOwn : public CommandTest
{
};
using HostsWithoutProvider =
    testing::Types<KdDbArcAlignedText, KdDbDwfReference, KdDbLight, KdDbUnderlayReference>;
TYPED_TEST_SUITE(WithoutProviderOfItsOwn, HostsWithoutProvider, );

TYPED_TEST(WithoutProviderOfItsOwn, AnswersThroughTheProviderOfEntitiesAtLarge)
{
    const TypeParam entity;
    EXPECT_TRUE(isOfType<KdDbEntity_Extension>(KdDbEntityPE::of(entity)));
}

TEST_F(RegistrationTable, LeavesALightTheGeneralPropertiesAlone)
{
    const KdDbLight light;
    KdArray<KdString> names;
    KdArray<bool> flags;
    KdDbEntityPE::of(light)->PropertyCount(&light, names, flags);
    EXPECT_EQ(names.length(), 8);
}

TEST_F(RegistrationTable, LetsCurvesWithoutARowInheritThatOfCurves)
{
    class Spiral : public KdDbCurve
    {
    } spiral;
    EXPECT_TRUE(isOfType<KdDbCurve_Extension>(KdDbEntityPE::of(spiral)));
}

TEST_F(RegistrationTable, IsTakenOffWhole)
{
    delXs();
    for (const KdRxClass* rxClass : kdrxAllClasses())
        EXPECT_EQ(attachedTo(rxClass), nullptr) << rxClass->name();
    addXs();
}

TEST_F(RegistrationTable, MayBeTakenOffTwice)
{
    delXs();
    delXs();
    EXPECT_EQ(attachedTo(KdDbMline::desc()), nullptr);
    addXs();
    EXPECT_TRUE(isOfType<KdDbMline_Extension>(attachedTo(KdDbMline::desc())));
}

TEST_F(RegistrationTable, MayBeAttachedTwice)
{
    addXs();
    for (const Registration& row : registrations())
        EXPECT_EQ(attachedTo(row.hostClass()), row.provider);
}

TEST_F(RegistrationTable, BringsTheTwoRuntimeClassesAndTakesThemAway)
{
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntityPE"), KdDbEntityPE::desc());
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntity_Extension"), KdDbEntity_Extension::desc());
    QSelectUnInit();
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntityPE"), nullptr);
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntity_Extension"), nullptr);
    QSelectInit();
}

TEST_F(RegistrationTable, ComesAndGoesAnyNumberOfTimes)
{
    const std::size_t classes = kdrxAllClasses().size();
    for (int i = 0; i < 3; ++i) {
        QSelectUnInit();
        EXPECT_EQ(kdrxAllClasses().size(), classes - 2);
        QSelectInit();
        EXPECT_EQ(kdrxAllClasses().size(), classes);
        const KdDbLine line;
        EXPECT_TRUE(isOfType<KdDbLine_Extension>(KdDbEntityPE::of(line)));
    }
}

TEST_F(RegistrationTable, MayBeInitialisedTwice)
{
    const std::size_t classes = kdrxAllClasses().size();
    QSelectInit();
    EXPECT_EQ(kdrxAllClasses().size(), classes);
    const KdDbLine line;
    EXPECT_TRUE(isOfType<KdDbLine_Extension>(KdDbEntityPE::of(line)));
}

TEST_F(RegistrationTable, MayBeUninitialisedTwice)
{
    QSelectUnInit();
    QSelectUnInit();
    const KdDbLine line;
    EXPECT_EQ(KdDbEntityPE::of(line), nullptr);
    QSelectInit();
}

} // namespace
