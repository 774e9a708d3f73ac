#include <database/hyperlink.h>

#include <memory>

#include <gtest/gtest.h>

#include <entities/all.h>
#include <runtime/heap.h>

#include "support.h"

using database_test::ExtendedData;

namespace {

KdDbEntityHyperlinkPE* extensionOf(const KdDbEntity& entity)
{
    return static_cast<KdDbEntityHyperlinkPE*>(entity.x(KdDbEntityHyperlinkPE::desc()));
}

class Hyperlinks : public testing::Test
{
  protected:
    std::unique_ptr<KdDbHyperlinkCollection> links()
    {
        KdDbHyperlinkCollection* collection = nullptr;
        EXPECT_EQ(m_extension->getHyperlinkCollection(&m_line, collection), eOk);
        return std::unique_ptr<KdDbHyperlinkCollection>(collection);
    }
    bool has()
    {
        bool found = false;
        EXPECT_EQ(m_extension->hasHyperlink(&m_line, found), eOk);
        return found;
    }

    KdDbLine m_line;
    KdDbEntityHyperlinkPE* m_extension = extensionOf(m_line);
};

TEST_F(Hyperlinks, AreMissingAtFirst)
{
    EXPECT_FALSE(has());
    EXPECT_EQ(links(), nullptr);
}

TEST_F(Hyperlinks, ComeFromExtendedData)
{
    m_line.edit().extendedData = ExtendedData()
                                     .text(1001, L"PE_URL")
                                     .text(1000, L"https://example.org/valve")
                                     .text(1002, L"{")
                                     .text(1000, L"A valve")
                                     .text(1000, L"chapter 2")
                                     .text(1002, L"}")
                                     .text(1001, L"OTHER")
                                     .text(1000, L"something else")
                                     .take();
    EXPECT_TRUE(has());
    const auto collection = links();
    ASSERT_NE(collection, nullptr);
    ASSERT_EQ(collection->count(), 1);
    EXPECT_EQ(collection->item(0).name, L"https://example.org/valve");
    EXPECT_EQ(collection->item(0).description, L"A valve");
    EXPECT_EQ(collection->item(0).subLocation, L"chapter 2");
}

TEST_F(Hyperlinks, MayConsistOfAnAddressAlone)
{
    m_line.edit().extendedData = ExtendedData()
                                     .text(1001, L"PE_URL")
                                     .text(1000, L"plan.dxf")
                                     .text(1001, L"OTHER")
                                     .text(1000, L"not the description")
                                     .take();
    const auto collection = links();
    ASSERT_NE(collection, nullptr);
    EXPECT_EQ(collection->item(0).name, L"plan.dxf");
    EXPECT_EQ(collection->item(0).description, L"");
}

TEST_F(Hyperlinks, OfOtherApplicationsDoNotCount)
{
    m_line.edit().extendedData = ExtendedData().text(1001, L"OTHER").text(1000, L"x").take();
    EXPECT_FALSE(has());
    EXPECT_EQ(links(), nullptr);
}

TEST_F(Hyperlinks, NeedAnObject)
{
    bool found = true;
    EXPECT_EQ(m_extension->hasHyperlink(nullptr, found), eNullObjectPointer);
    EXPECT_TRUE(found);
    KdDbHyperlinkCollection* collection = nullptr;
    EXPECT_EQ(m_extension->getHyperlinkCollection(nullptr, collection), eNullObjectPointer);
}

TEST_F(Hyperlinks, AreLookedForWithoutAllocation)
{
    m_line.edit().extendedData = ExtendedData().text(1001, L"OTHER").text(1000, L"x").take();
    const long long before = kdHeapBlocksInUse();
    EXPECT_FALSE(has());
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(HyperlinkExtension, AnswersForEveryEntityClass)
{
    int classes = 0;
    for (const KdRxClass* rxClass : kdrxAllClasses()) {
        if (!rxClass->isDerivedFrom(KdDbEntity::desc()))
            continue;
        ++classes;
        EXPECT_NE(rxClass->queryX(KdDbEntityHyperlinkPE::desc()), nullptr) << rxClass->name();
    }
    EXPECT_GT(classes, 80);
}

TEST(HyperlinkExtension, DoesNotAnswerForOtherObjects)
{
    EXPECT_EQ(KdDbLayout().x(KdDbEntityHyperlinkPE::desc()), nullptr);
}

TEST(HyperlinkExtension, IsOfItsClass)
{
    EXPECT_TRUE(extensionOf(KdDbCircle())->isKindOf(KdDbEntityHyperlinkPE::desc()));
}

} // namespace
