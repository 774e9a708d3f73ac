#include "working_drawing.h"

#include <editor/current_space.h>
#include <editor/selection_sets.h>
#include <editor/ucs.h>
#include <entities/all.h>

using namespace editor_test;

namespace {

/// A dynamic block with a parameter and a grip.
class OpenBlock : public WorkingDrawing
{
  protected:
    OpenBlock()
    {
        auto* block = drawing.addRecord<KdDbBlockTable>(L"DOOR");
        door = block->objectId();
        auto* dictionary = new KdDbDictionary;
        drawing.addObject(dictionary, door);
        auto* graph = new KdDbEvalGraph;
        for (KdDbBlockElement* element : std::initializer_list<KdDbBlockElement*>{
                 new KdDbBlockLinearParameter, new KdDbBlockLinearGrip}) {
            drawing.addObject(element, dictionary->objectId());
            graph->edit().elements.push_back(element->objectId());
        }
        drawing.addObject(graph, dictionary->objectId());
        KdDbDictionary* opened = nullptr;
        kddbOpenObject(opened, dictionary->objectId(), KdDb::kForWrite);
        opened->setAt(L"ACAD_ENHANCEDBLOCK", graph->objectId());
        opened->close();
        KdDbBlockTableRecord* record = nullptr;
        kddbOpenObject(record, door, KdDb::kForWrite);
        record->edit().links.edit().extensionDictionary = dictionary->objectId();
        record->close();
    }

    /// The classes of what can be selected in the current space.
    std::vector<std::wstring> selectable()
    {
        std::vector<std::wstring> names;
        kds_name set;
        if (kdedSSGetImpl(L"X", nullptr, nullptr, nullptr, set, kKdedCurrentSpaceOnly) != RTNORM)
            return names;
        long length = 0;
        kdedSSLength(set, &length);
        for (long i = 0; i < length; ++i) {
            kds_name name;
            KdDbObjectId id;
            kdedSSName(set, i, name);
            kddbGetObjectId(id, name);
            names.emplace_back(id.objectClass()->name());
        }
        kdedSSFree(set);
        return names;
    }

    KdDbObjectId door;
    const KdDbObjectId firstSheet = sheet();
};

const std::vector<std::wstring> kElements{L"AcDbBlockLinearParameterEntity",
                                          L"AcDbBlockLinearGripEntity"};

TEST_F(OpenBlock, IsTheCurrentSpaceWithItsElements)
{
    EXPECT_EQ(kdedOpenBlock(door), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), door);
    EXPECT_EQ(kdedOpenBlockId(), door);
    EXPECT_EQ(selectable(), kElements);
}

TEST_F(OpenBlock, GivesThePlaceBackToWhatWasShown)
{
    EXPECT_EQ(kdedOpenBlock(door), eOk);
    EXPECT_EQ(kdedCloseBlock(), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(kdedCurrentSpaceId(), firstSheet);
    EXPECT_EQ(kdedOpenBlock(door), eOk);
    EXPECT_EQ(kdedCloseBlock(), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), firstSheet);
    EXPECT_TRUE(kdedOpenBlockId().isNull());
    EXPECT_EQ(kdedCloseBlock(), eNotApplicable);
}

TEST_F(OpenBlock, ShowsItsElementsOnceWhenItIsOpenedAgain)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(kdedOpenBlock(door), eOk);
        EXPECT_EQ(selectable(), kElements);
    }
    kdedCloseBlock();
    const OpenForRead<KdDbBlockTableRecord> record(door);
    EXPECT_EQ(record->entityIds().size(), 2u);
    EXPECT_TRUE(record->entityIds().front().isErased());
}

TEST_F(OpenBlock, IsClosedWhenTheUserGoesElsewhere)
{
    EXPECT_EQ(kdedOpenBlock(door), eOk);
    setShort(L"TILEMODE", 1);
    EXPECT_TRUE(kdedOpenBlockId().isNull());
    EXPECT_EQ(kdedCloseBlock(), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
    setShort(L"TILEMODE", 0);
    EXPECT_NE(kdedCurrentSpaceId(), door);
}

TEST_F(OpenBlock, GivesWayToAnotherOne)
{
    const KdDbObjectId window = drawing.addRecord<KdDbBlockTable>(L"WINDOW")->objectId();
    EXPECT_EQ(kdedOpenBlock(door), eOk);
    EXPECT_EQ(kdedOpenBlock(window), eOk);
    EXPECT_EQ(kdedCurrentSpaceId(), window);
    kdedCloseBlock();
    EXPECT_EQ(kdedCurrentSpaceId(), model());
}

TEST_F(OpenBlock, ShowsNothingOfElementsThatHaveNoClassForIt)
{
    const KdDbObjectId dictionary = OpenForRead<KdDbBlockTableRecord>(door)->extensionDictionary();
    auto* element = new KdDbBlockElement;
    drawing.addObject(element, dictionary);
    KdDbEvalGraph* graph = nullptr;
    ASSERT_EQ(kddbOpenObject(graph, KdDbEvalGraph::ofBlock(door), KdDb::kForWrite), eOk);
    graph->edit().elements.push_back(element->objectId());
    graph->close();
    ASSERT_EQ(kdedOpenBlock(door), eOk);
    EXPECT_EQ(selectable().size(), 2u);
}

TEST_F(OpenBlock, IsNoneWithoutAWorkingDrawing)
{
    ASSERT_EQ(kdedOpenBlock(door), eOk);
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_TRUE(kdedOpenBlockId().isNull());
}

TEST_F(OpenBlock, CannotBeOpenedWhileItIsReadElsewhere)
{
    {
        const OpenForRead<KdDbBlockTableRecord> reader(door);
        EXPECT_EQ(kdedOpenBlock(door), eWasOpenForRead);
        EXPECT_TRUE(kdedOpenBlockId().isNull());
    }
    EXPECT_EQ(kdedOpenBlock(door), eOk);
}

TEST_F(OpenBlock, IsNoSpaceAndNoExternalReference)
{
    auto* site = drawing.addRecord<KdDbBlockTable>(L"SITE");
    KdDbBlockTableRecord* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, site->objectId(), KdDb::kForWrite), eOk);
    opened->edit().externalReference = true;
    EXPECT_EQ(kdedOpenBlock(site->objectId()), eWasOpenForWrite);
    opened->close();
    EXPECT_EQ(kdedOpenBlock(site->objectId()), eNotApplicable);
    EXPECT_EQ(kdedOpenBlock(model()), eNotApplicable);
    EXPECT_EQ(kdedOpenBlock(sheet()), eNotApplicable);
    EXPECT_EQ(kdedOpenBlock({}), eInvalidInput);
    EXPECT_EQ(kdedOpenBlock(drawing.namedObjectsDictionaryId()), eInvalidInput);
    KdDbDatabase other;
    const KdDbObjectId foreign = other.addRecord<KdDbBlockTable>(L"DOOR")->objectId();
    EXPECT_EQ(kdedOpenBlock(foreign), eWrongDatabase);
    EXPECT_EQ(kdedCurrentSpaceId(), model());
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(kdedOpenBlock(door), eNotInDatabase);
    EXPECT_EQ(kdedCloseBlock(), eNotApplicable);
}

TEST_F(OpenBlock, IsSeenInTheUserCoordinateSystem)
{
    const auto set = [&](const wchar_t* name, const KdGePoint3d& value) {
        drawing.header().setValue(KdDbHeaderVariables::indexOf(name), value);
    };
    set(L"UCSORG", {1, 2, 3});
    set(L"UCSXDIR", {0, 1, 0});
    set(L"UCSYDIR", {-1, 0, 0});
    KdGePoint3d point{10, 20, 30};
    EXPECT_EQ(kddbWcs2Ucs(point, point, false), eOk);
    EXPECT_EQ(point, (KdGePoint3d{18, -9, 27}));
    EXPECT_EQ(kddbWcs2Ucs({10, 20, 30}, point, true), eOk);
    EXPECT_EQ(point, (KdGePoint3d{20, -10, 30}));
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(kddbWcs2Ucs({}, point, true), eNotInDatabase);
    EXPECT_EQ(point, (KdGePoint3d{20, -10, 30}));
}

} // namespace
