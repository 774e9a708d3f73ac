#include "support.h"

using namespace blocks_test;
using namespace provider_test;
using testing::ElementsAre;

namespace {

class Attributes : public BlocksTest
{
  protected:
    Attributes()
    {
        appendTo(door, new KdDbAttributeDefinition);
        addAttribute(L"SIZE", L"90 x 210");
        addAttribute(L"size", L"small letters");
        addAttribute(L"SIZE", L"second of its tag");
    }

    void appendTo(KdDbBlockTableRecord* block, KdDbEntity* entity)
    {
        KdDbBlockTableRecord* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, block->objectId(), KdDb::kForWrite), eOk);
        EXPECT_EQ(opened->appendEntity(entity), eOk);
        opened->close();
    }

    void addAttribute(const wchar_t* tag, const wchar_t* text)
    {
        auto* attribute =
            addObject<KdDbAttribute>(reference->objectId(), [&](AttributeMembers& members) {
                members.tag = tag;
                members.text = text;
            });
        reference->appendPart(attribute->objectId());
    }

    KdDbBlockTableRecord* door = addBlock(L"DOOR");
    KdDbBlockReference* reference = addReference(door);
    KdDbBlockReference_Extension provider;
};

TEST_F(Attributes, AreAnsweredByTagWithATagRecordInEveryCall)
{
    expectAnswers(provider, reference,
                  {{L"Attributes:SIZE", "5005 90 x 210", {"280 0"}},
                   {L"Attributes:size", "5005 small letters", {"280 0"}}});
}

TEST_F(Attributes, AreNeverListed)
{
    for (const std::wstring& key : list(provider, reference).keys)
        EXPECT_FALSE(key.starts_with(L"Attributes")) << testing::PrintToString(key);
}

TEST_F(Attributes, MatchByTheWholeTag)
{
    for (const wchar_t* key : {L"Attributes:SIZ", L"Attributes:", L"attributes:SIZE", L"SIZE",
                               L"Attributes", L"Attributes::SIZE"}) {
        const Answer answer = ask(provider, reference, key);
        EXPECT_EQ(answer.status, 0) << testing::PrintToString(std::wstring(key));
        EXPECT_THAT(answer.chain, ElementsAre("5000 nothing"));
    }
}

TEST_F(Attributes, MayHaveAColonInTheTag)
{
    addAttribute(L"A:B", L"both");
    EXPECT_THAT(ask(provider, reference, L"Attributes:A:B").chain,
                ElementsAre("5005 both", "280 0"));
}

TEST_F(Attributes, CountOnlyIfTheBlockDefinesSome)
{
    auto* plain = addBlock(L"PLAIN");
    change(reference, [&](auto& members) { members.block = plain->objectId(); });
    EXPECT_EQ(ask(provider, reference, L"Attributes:SIZE").status, 0);
    change(reference, [](auto& members) { members.block = {}; });
    EXPECT_EQ(ask(provider, reference, L"Attributes:SIZE").status, 0);
}

TEST_F(Attributes, AreThoseOfTheReferenceThatIsAsked)
{
    EXPECT_EQ(ask(provider, addReference(door), L"Attributes:SIZE").status, 0);
}

} // namespace
