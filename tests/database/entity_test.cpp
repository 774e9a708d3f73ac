#include <database/entity.h>

#include <array>
#include <string>

#include <gtest/gtest.h>

#include <entities/all.h>
#include <runtime/heap.h>

#include "support.h"

using database_test::addToModel;
using database_test::OpenForWrite;
using database_test::setErased;

namespace {

class EntityInModel : public testing::Test
{
  protected:
    void edit(const auto& change)
    {
        const OpenForWrite<KdDbLine> open(m_line->objectId());
        change(static_cast<EntityMembers&>(open->edit()));
    }

    KdDbDatabase m_database;
    KdDbLine* m_line = addToModel<KdDbLine>(m_database);
};

TEST_F(EntityInModel, HasTheGeneralValuesByDefault)
{
    EXPECT_EQ(m_line->layer(), L"0");
    EXPECT_EQ(m_line->color().color(), 0xC0000000u);
    EXPECT_EQ(m_line->linetype(), L"ByLayer");
    EXPECT_EQ(m_line->linetypeScale(), 1.0);
    EXPECT_EQ(m_line->lineWeight(), -1);
    EXPECT_EQ(m_line->transparency().method(), KdCmTransparency::kByLayer);
    EXPECT_EQ(m_line->plotStyleName(), L"ByLayer");
    EXPECT_FALSE(m_line->isInvisible());
}

TEST_F(EntityInModel, NamesItsLayer)
{
    m_line->setLayer(m_database.addRecord<KdDbLayerTable>(L"Rohre")->objectId());
    EXPECT_EQ(m_line->layer(), L"Rohre");
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(EntityInModel, HasNoLayerNameWithoutTheLayer)
{
    const KdDbObjectId layer = m_database.addRecord<KdDbLayerTable>(L"Gone")->objectId();
    m_line->setLayer(layer);
    setErased(layer);
    EXPECT_EQ(m_line->layer(), L"");
    m_line->setLayer({});
    EXPECT_EQ(m_line->layer(), L"");
}

TEST_F(EntityInModel, NamesItsLinetype)
{
    const KdDbObjectId dashed = m_database.addRecord<KdDbLinetypeTable>(L"Dashed")->objectId();
    edit([&](EntityMembers& members) { members.linetype = dashed; });
    EXPECT_EQ(m_line->linetype(), L"Dashed");
    EXPECT_EQ(m_line->linetypeId(), dashed);
}

TEST_F(EntityInModel, NamesPlotStylesOfTheLayerAndTheBlock)
{
    edit([](EntityMembers& members) { members.plotStyleKind = EntityMembers::PlotStyle::ByBlock; });
    EXPECT_EQ(m_line->plotStyleName(), L"ByBlock");
}

TEST_F(EntityInModel, NamesTheDefaultPlotStyle)
{
    edit([](EntityMembers& members) {
        members.plotStyleKind = EntityMembers::PlotStyle::DictionaryDefault;
    });
    EXPECT_EQ(m_line->plotStyleName(), L"Normal");
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(EntityInModel, NamesItsPlotStyleAsTheDictionaryDoes)
{
    KdDbDictionary* styles = nullptr;
    ASSERT_EQ(m_database.getPlotStyleNameDictionary(styles, KdDb::kForWrite), eOk);
    std::vector<KdDbObjectId> ids;
    for (int i = 0; i < 40; ++i) {
        auto* style = new KdDbPlaceHolder;
        m_database.addObject(style, styles->objectId());
        ids.push_back(style->objectId());
        EXPECT_EQ(styles->setAt(KdString(L"Style " + std::to_wstring(i)), ids.back()), eOk);
    }
    styles->close();
    edit([&](EntityMembers& members) {
        members.plotStyleKind = EntityMembers::PlotStyle::ByName;
        members.seldom.edit().plotStyle = ids[30];
    });
    EXPECT_EQ(m_line->plotStyleName(), L"Style 30");
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(EntityInModel, HasNoPlotStyleNameWithoutTheStyle)
{
    edit([&](EntityMembers& members) {
        members.plotStyleKind = EntityMembers::PlotStyle::ByName;
        members.seldom.edit().plotStyle = m_database.modelSpaceId();
    });
    EXPECT_EQ(m_line->plotStyleName(), L"");
    edit([](EntityMembers& members) { members.seldom.edit().plotStyle = {}; });
    EXPECT_EQ(m_line->plotStyleName(), L"");
}

TEST_F(EntityInModel, HasNoPlotStyleNameWithoutDatabase)
{
    KdDbLine line;
    line.edit().plotStyleKind = EntityMembers::PlotStyle::ByName;
    EXPECT_EQ(line.plotStyleName(), L"");
}

TEST_F(EntityInModel, GivesItsNamesWithoutAllocation)
{
    const auto nameAll = [&] {
        return std::array{m_line->layer(), m_line->linetype(), m_line->plotStyleName()};
    };
    nameAll();
    const long long before = kdHeapBlocksInUse();
    const auto names = nameAll();
    EXPECT_EQ(kdHeapBlocksInUse(), before);
    EXPECT_EQ(names[1], names[2]);
}

TEST_F(EntityInModel, HasAColorWithNames)
{
    edit([](EntityMembers& members) {
        members.color = 0xC2102030;
        members.seldom.edit().colorName = L"BOOK$COLOR $1";
    });
    EXPECT_EQ(m_line->color().color(), 0xC2102030u);
    EXPECT_EQ(m_line->color().bookName(), L"BOOK");
    EXPECT_EQ(m_line->color().colorName(), L"COLOR $1");
}

TEST_F(EntityInModel, HasAColorNameOutsideOfBooks)
{
    edit([](EntityMembers& members) { members.seldom.edit().colorName = L"Sand"; });
    EXPECT_EQ(m_line->color().bookName(), L"");
    EXPECT_EQ(m_line->color().colorName(), L"Sand");
}

TEST_F(EntityInModel, TellsWhatItsDataSay)
{
    edit([](EntityMembers& members) {
        members.seldom.edit().linetypeScale = 2.5;
        members.lineweight = 35;
        members.seldom.edit().transparency = 0x02000080;
        members.invisible = true;
    });
    EXPECT_EQ(m_line->linetypeScale(), 2.5);
    EXPECT_EQ(m_line->lineWeight(), 35);
    EXPECT_EQ(m_line->transparency().alpha(), 128);
    EXPECT_TRUE(m_line->isInvisible());
}

TEST_F(EntityInModel, TakesOverThePropertiesOfAnother)
{
    m_line->setLayer(m_database.addRecord<KdDbLayerTable>(L"Rohre")->objectId());
    edit([](EntityMembers& members) {
        members.color = 0xC2102030;
        members.seldom.edit().colorName = L"Sand";
        members.seldom.edit().linetypeScale = 2.5;
        members.lineweight = 35;
        members.seldom.edit().transparency = 0x02000080;
        members.plotStyleKind = EntityMembers::PlotStyle::ByBlock;
        members.shadows = EntityMembers::Shadows::Ignore;
        members.invisible = true;
    });
    KdDbArc arc;
    arc.setPropertiesFrom(*m_line);
    EXPECT_EQ(arc.layer(), L"Rohre");
    EXPECT_EQ(arc.color().color(), 0xC2102030u);
    EXPECT_EQ(arc.color().colorName(), L"Sand");
    EXPECT_EQ(arc.linetypeScale(), 2.5);
    EXPECT_EQ(arc.lineWeight(), 35);
    EXPECT_EQ(arc.transparency().alpha(), 128);
    EXPECT_EQ(arc.plotStyleName(), L"ByBlock");
    EXPECT_FALSE(arc.castShadows());
    EXPECT_TRUE(arc.isInvisible());
}

TEST_F(EntityInModel, LiesInTheBlockThatOwnsIt)
{
    EXPECT_EQ(m_line->blockId(), m_database.modelSpaceId());
    EXPECT_TRUE(KdDbLine().blockId().isNull());
}

TEST_F(EntityInModel, LiesInTheBlockOfTheEntityThatOwnsIt)
{
    auto* whole = addToModel<KdDb2dPolyline>(m_database);
    auto* vertex = new KdDb2dVertex;
    ASSERT_EQ(m_database.addObject(vertex, whole->objectId()), eOk);
    EXPECT_EQ(vertex->blockId(), m_database.modelSpaceId());
    {
        const OpenForWrite<KdDb2dPolyline> busy(whole->objectId());
        EXPECT_EQ(vertex->blockId(), m_database.modelSpaceId());
    }
    setErased(whole->objectId());
    EXPECT_EQ(vertex->blockId(), m_database.modelSpaceId());
}

} // namespace
