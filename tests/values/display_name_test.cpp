#include <values/display_name.h>

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <entities/assoc_array.h>
#include <entities/block_reference.h>
#include <entities/circle.h>
#include <entities/linear_dimensions.h>
#include <platform/object_model.h>
#include <values/resource_string.h>

#include "support.h"

namespace {

/// An entity of any class.
class ToyEntity : public KdDbEntity
{
  public:
    explicit ToyEntity(KdRxClass* rxClass) : m_class(rxClass) {}
    KdRxClass* isA() const override { return m_class; }

  private:
    KdRxClass* m_class;
};

class DisplayName : public DrawingTest
{
  protected:
    ~DisplayName() override { deleteKdRxClass(m_ownClass); }

    /// The class of that name, made for the length of the test if there is none.
    KdRxClass* classNamed(const std::wstring& name)
    {
        if (KdRxClass* const known = kdrxFindKdRxClass(name.c_str()))
            return known;
        return m_ownClass = newKdRxClass(name.c_str(), KdDbEntity::desc()->name(), 0, nullptr,
                                         L"TOY", nullptr);
    }

    std::wstring nameOfClass(const std::wstring& name)
    {
        const ToyEntity entity(classNamed(name));
        return GetLocalNameOfKdDbEntityEx(&entity);
    }

    template <class Entity>
    Entity* add()
    {
        auto* entity = new Entity;
        m_drawing.addObject(entity, m_drawing.modelSpaceId());
        return entity;
    }

    static void erase(const KdDbEntity& entity)
    {
        KdDbObject* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, entity.objectId(), KdDb::kForWrite), eOk);
        EXPECT_EQ(opened->erase(), eOk);
        opened->close();
    }

  private:
    KdRxClass* m_ownClass = nullptr;
};

struct NameCase
{
    const char* className;
    unsigned int id;
};

// clang-format off
constexpr NameCase kNames[] = {
    {"AcDbFace", 51060},
    {"AcDbArc", 51061},
    {"AcDbAttributeDefinition", 51062},
    {"AcDbAttribute", 51063},
    {"AcDbCircle", 51064},
    {"AcDbDimension", 51065},
    {"AcDbEllipse", 51066},
    {"AcDbRasterImage", 51067},
    {"AcDbLeader", 51068},
    {"AcDbLine", 51069},
    {"AcDbMLine", 51070},
    {"AcDbMText", 51071},
    {"AcDbPolyline", 51072},
    {"AcDbLWPolyline", 51073},
    {"AcDbPoint", 51115},
    {"AcDbRay", 51074},
    {"AcDbShape", 51075},
    {"AcDbSolid", 51076},
    {"AcDbSpline", 51077},
    {"AcDbText", 51078},
    {"AcDbFcf", 51079},
    {"AcDbTrace", 51080},
    {"AcDbViewport", 51081},
    {"AcDbXline", 51082},
    {"AcDbHatch", 51083},
    {"AcDb3dSolid", 51084},
    {"AcDbRegion", 51085},
    {"AcDbBody", 51086},
    {"AcDbProxyEntity", 51087},
    {"KdDbUndeadEntity", 51087},
    {"AcDbSubDMesh", 51087},
    {"AcDbArcAlignedText", 51088},
    {"AcDbRText", 51089},
    {"AcDbWipeout", 51117},
    {"AcDbOrdinateDimension", 51096},
    {"AcDbArcDimension", 51097},
    {"AcDbOle2Frame", 51098},
    {"AcDb2DPolyline", 51099},
    {"AcDb3DPolyline", 51100},
    {"AcDbPolygonMesh", 51101},
    {"AcDbPolyFaceMesh", 51102},
    {"AcDbHelix", 51103},
    {"AcDbField", 51104},
    {"AcDbMLeader", 51116},
    {"AcDbTable", 51105},
    {"AcDbSurface", 51106},
    {"AcDbPlaneSurface", 51107},
    {"AcDbExtrudedSurface", 51108},
    {"AcDbRevolvedSurface", 51109},
    {"AcDbSweptSurface", 51110},
    {"AcDbLoftedSurface", 51111},
    {"AcDbLight", 51112},
    {"AcDbMInsertBlock", 51113},
    {"AcDbBlockAlignmentParameterEntity", 51268},
    {"AcDbBlockBasepointParameterEntity", 51272},
    {"AcDbBlockFlipParameterEntity", 51269},
    {"AcDbBlockLinearParameterEntity", 51264},
    {"AcDbBlockLookupParameterEntity", 51271},
    {"AcDbBlockPointParameterEntity", 51263},
    {"AcDbBlockPolarParameterEntity", 51265},
    {"AcDbBlockRotationParameterEntity", 51267},
    {"AcDbBlockXYParameterEntity", 51266},
    {"AcDbBlockVisibilityParameterEntity", 51270},
    {"AcDbBlockArrayActionEntity", 51275},
    {"AcDbBlockFlipActionEntity", 51276},
    {"AcDbBlockLookupActionEntity", 51273},
    {"AcDbBlockMoveActionEntity", 51274},
    {"AcDbBlockPolarStretchActionEntity", 51278},
    {"AcDbBlockScaleActionEntity", 51277},
    {"AcDbBlockStretchActionEntity", 51279},
    {"AcDbBlockRotateActionEntity", 51280},
    {"AcDbBlockAlignmentGripEntity", 51283},
    {"AcDbBlockFlipGripEntity", 51284},
    {"AcDbBlockLinearGripEntity", 51287},
    {"AcDbBlockLookupGripEntity", 51282},
    {"AcDbBlockPolarGripEntity", 51285},
    {"AcDbBlockVisibilityGripEntity", 51286},
    {"AcDbBlockXYGripEntity", 51281},
    {"AcDbBlockRotationGripEntity", 51288},
    {"AcDbPdfReference", 51151},
    {"AcDbDwfReference", 51148},
    {"AcDbRadialDimensionLarge", 51139},
};
// clang-format on
static_assert(std::size(kNames) == 82);

class DisplayNameOfClass : public DisplayName, public testing::WithParamInterface<NameCase>
{
};

INSTANTIATE_TEST_SUITE_P(Table, DisplayNameOfClass, testing::ValuesIn(kNames),
                         [](const auto& row) { return row.param.className; });

TEST_P(DisplayNameOfClass, IsTheTextOfItsNumber)
{
    const std::string className = GetParam().className;
    const std::wstring expected = GetOPMStr(GetParam().id);
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(nameOfClass(std::wstring(className.begin(), className.end())), expected);
}

TEST_F(DisplayName, IsFoundInAnyCase)
{
    EXPECT_EQ(nameOfClass(L"ACDBcircle"), L"Circle");
}

TEST_F(DisplayName, IsEmptyForNull)
{
    EXPECT_TRUE(GetLocalNameOfKdDbEntityEx(nullptr).empty());
}

TEST_F(DisplayName, ComesFromTheTableForEntitiesOfTheDrawing)
{
    EXPECT_EQ(GetLocalNameOfKdDbEntityEx(add<KdDbCircle>()), L"Circle");
}

TEST_F(DisplayName, ComesFromTheObjectModelForOtherClasses)
{
    const KdDbBlockReference* const reference = add<KdDbBlockReference>();
    EXPECT_EQ(GetLocalNameOfKdDbEntityEx(reference), L"Block Reference");
    EXPECT_EQ(GetEntityDisplayName(reference->objectId()), L"Block Reference");
}

TEST_F(DisplayName, IsEmptyWhereTheObjectModelHasNoEntity)
{
    KdDbObjectId layer;
    ASSERT_EQ(m_drawing.table<KdDbLayerTable>().getIdAt(L"0", layer), eOk);
    EXPECT_TRUE(GetEntityDisplayName(layer).empty());
    EXPECT_TRUE(GetEntityDisplayName(KdDbObjectId::kNull).empty());
}

TEST_F(DisplayName, IsEmptyForAnEntityWithoutAClass)
{
    const ToyEntity entity(nullptr);
    EXPECT_TRUE(GetLocalNameOfKdDbEntityEx(&entity).empty());
    DisplayNames names;
    EXPECT_TRUE(names.of(entity).empty());
    EXPECT_EQ(names.ofClass(nullptr), nullptr);
}

TEST_F(DisplayName, IsEmptyForAnEntityWhoseClassIsThatOfNone)
{
    auto* entity = new ToyEntity(KdDbObject::desc());
    ASSERT_EQ(m_drawing.addObject(entity, m_drawing.modelSpaceId()), eOk);
    EXPECT_TRUE(GetEntityDisplayName(entity->objectId()).empty());
}

TEST_F(DisplayName, IsEmptyForAnErasedEntity)
{
    KdDbBlockReference* reference = add<KdDbBlockReference>();
    erase(*reference);
    EXPECT_TRUE(GetEntityDisplayName(reference->objectId()).empty());
}

class NamesOfARun : public DisplayName
{
  protected:
    /// A reference that is an array, which its reactor tells.
    KdDbBlockReference* addArray()
    {
        auto* body = new KdDbAssocArrayActionBody;
        body->edit().array = std::make_unique<KdDbAssocArrayPolarParameters>();
        m_drawing.addObject(body, {});
        auto* action = new KdDbAssocAction;
        action->edit().body = body->objectId();
        m_drawing.addObject(action, {});
        auto* dependency = new KdDbAssocDependency;
        m_drawing.addObject(dependency, action->objectId());
        auto* reference = new KdDbBlockReference;
        reference->edit().links.edit().reactors = {dependency->objectId()};
        m_drawing.addObject(reference, m_drawing.modelSpaceId());
        return reference;
    }

    DisplayNames names;
};

TEST_F(NamesOfARun, AreThoseThatEntitiesHave)
{
    EXPECT_EQ(names.of(*add<KdDbCircle>()), L"Circle");
    EXPECT_EQ(names.of(*add<KdDbAlignedDimension>()), L"Aligned Dimension");
    EXPECT_EQ(names.of(*add<KdDbBlockReference>()), L"Block Reference");
}

TEST_F(NamesOfARun, AreKnownForAClassOfTheTableBeforeAnyEntity)
{
    ASSERT_NE(names.ofClass(KdDbCircle::desc()), nullptr);
    EXPECT_EQ(*names.ofClass(KdDbCircle::desc()), L"Circle");
    EXPECT_EQ(names.ofClass(nullptr), nullptr);
}

TEST_F(NamesOfARun, AreKnownForAClassOfTheObjectModelFromTheFirstEntityOn)
{
    EXPECT_EQ(names.ofClass(KdDbAlignedDimension::desc()), nullptr);
    names.of(*add<KdDbAlignedDimension>());
    ASSERT_NE(names.ofClass(KdDbAlignedDimension::desc()), nullptr);
    EXPECT_EQ(*names.ofClass(KdDbAlignedDimension::desc()), L"Aligned Dimension");
}

TEST_F(NamesOfARun, TellReferencesApartToWhichSomethingReacts)
{
    EXPECT_EQ(names.of(*addArray()), L"Polar Array");
    EXPECT_EQ(names.of(*add<KdDbBlockReference>()), L"Block Reference");
    EXPECT_EQ(names.of(*addArray()), L"Polar Array");
    EXPECT_EQ(names.ofClass(KdDbBlockReference::desc()), nullptr);
}

TEST_F(NamesOfARun, DoNotFollowFromAnErasedEntity)
{
    auto* erased = add<KdDbAlignedDimension>();
    erase(*erased);
    EXPECT_EQ(names.of(*erased), L"");
    EXPECT_EQ(names.ofClass(KdDbAlignedDimension::desc()), nullptr);
    EXPECT_EQ(names.of(*add<KdDbAlignedDimension>()), L"Aligned Dimension");
}

TEST_F(NamesOfARun, AreEmptyWithoutAClass)
{
    EXPECT_EQ(names.of(ToyEntity(nullptr)), L"");
}

using ClassId = DisplayName;

TEST_F(ClassId, IsThatOfTheObjectModel)
{
    const KdDbCircle* const circle = add<KdDbCircle>();
    CLSID expected{};
    ASSERT_EQ(kddbGetClassID(*circle, expected), eOk);
    CLSID classId{};
    EXPECT_EQ(GetCLSID(classId, circle->objectId()), 1);
    EXPECT_EQ(classId, expected);
}

TEST_F(ClassId, IsThatOfEntitiesAtLargeForAnEntityWithoutOne)
{
    class Unknown : public KdDbCircle
    {
        KdErrorStatus getClassID(CLSID*) const override { return eNotApplicable; }
    };
    CLSID classId{};
    EXPECT_EQ(GetCLSID(classId, add<Unknown>()->objectId()), 1);
    EXPECT_EQ(classId, CLSID_KdadEntity);
}

TEST_F(ClassId, StaysUntouchedForWhatIsNoEntity)
{
    KdDbObjectId layer;
    ASSERT_EQ(m_drawing.table<KdDbLayerTable>().getIdAt(L"0", layer), eOk);
    CLSID classId = IID_IUnknown;
    EXPECT_EQ(GetCLSID(classId, layer), 0);
    EXPECT_EQ(classId, IID_IUnknown);
}

TEST_F(ClassId, StaysUntouchedForWhatCannotBeOpened)
{
    CLSID classId = IID_IUnknown;
    EXPECT_EQ(GetCLSID(classId, KdDbObjectId::kNull), 0);
    EXPECT_EQ(classId, IID_IUnknown);
}

} // namespace
