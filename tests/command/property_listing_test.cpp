#include <command/entry.h>

#include <entities/light.h>

#include <values/globals.h>

#include "support.h"

using namespace command_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct ListedType
{
    std::wstring name;
    std::wstring className;
    KdDbObjectId example;
    std::size_t count;

    bool operator==(const ListedType&) const = default;
};

struct ListedValue
{
    int restype;
    std::wstring text;
    double number;
    long long integer;
};

struct ListedProperty
{
    std::wstring key;
    bool readOnly;
    std::vector<ListedValue> values;
    std::vector<ListedValue> choices;
};

std::vector<ListedType> types(long* ss = nullptr)
{
    std::vector<ListedType> listed;
    QSelectListTypes(
        ss,
        [](void* context, const quick_select::Type& type) {
            static_cast<std::vector<ListedType>*>(context)->push_back(
                {type.displayName, type.className, type.example, type.count});
        },
        &listed);
    return listed;
}

Ids entities(long* ss = nullptr)
{
    Ids listed;
    QSelectListEntities(
        ss,
        [](void* context, const quick_select::Entity& entity) {
            static_cast<Ids*>(context)->push_back(entity.id);
        },
        &listed);
    return listed;
}

std::vector<ListedValue> copies(const quick_select::Value* values, std::size_t count)
{
    std::vector<ListedValue> made;
    for (std::size_t i = 0; i < count; ++i)
        made.push_back({values[i].restype, values[i].text, values[i].number, values[i].integer});
    return made;
}

std::vector<ListedProperty> properties(KdDbObjectId id, const wchar_t* onlyKey = nullptr,
                                       bool withChoices = false)
{
    std::vector<ListedProperty> listed;
    QSelectListProperties(
        id, onlyKey, withChoices,
        [](void* context, const quick_select::Property& property) {
            static_cast<std::vector<ListedProperty>*>(context)->push_back(
                {property.key, property.readOnly, copies(property.values, property.valueCount),
                 copies(property.choices, property.choiceCount)});
        },
        &listed);
    return listed;
}

std::vector<std::wstring> operators(int restype)
{
    std::vector<std::wstring> listed;
    QSelectListOperators(
        restype,
        [](void* context, const wchar_t* text) {
            static_cast<std::vector<std::wstring>*>(context)->emplace_back(text);
        },
        &listed);
    return listed;
}

class Listing : public CommandTest
{
};

TEST_F(Listing, OfTypesHasEachDisplayNameOnceWithItsCount)
{
    const KdDbObjectId line = add<KdDbLine>(model())->objectId();
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    add<KdDbLine>(model());
    add<NamelessEntity>(model());
    EXPECT_THAT(types(), ElementsAre(ListedType{L"Line", L"AcDbLine", line, 2},
                                     ListedType{L"Circle", L"AcDbCircle", circle, 1}));
}

TEST_F(Listing, OfTypesCanBeThatOfASelectionSet)
{
    add<KdDbLine>(model());
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    GivenSet given({circle});
    EXPECT_THAT(types(given.name), ElementsAre(ListedType{L"Circle", L"AcDbCircle", circle, 1}));
}

TEST_F(Listing, OfAnEmptySetIsEmptyWhateverIsSelected)
{
    select({add(model())->objectId()});
    GivenSet given;
    EXPECT_THAT(types(given.name), IsEmpty());
    EXPECT_THAT(entities(given.name), IsEmpty());
}

TEST_F(Listing, OfAnEmptyDrawingIsEmptyAndSaysNothing)
{
    EXPECT_THAT(types(), IsEmpty());
    EXPECT_THAT(entities(), IsEmpty());
}

TEST_F(Listing, WithoutADrawingIsEmpty)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_THAT(types(), IsEmpty());
    EXPECT_THAT(entities(), IsEmpty());
    EXPECT_THAT(properties(KdDbObjectId()), IsEmpty());
}

TEST_F(Listing, OfEntitiesHasAllOfTheCurrentSpace)
{
    const KdDbObjectId line = add(model())->objectId();
    const KdDbObjectId nameless = add<NamelessEntity>(model())->objectId();
    add(sheet());
    EXPECT_THAT(entities(), ElementsAre(line, nameless));
}

TEST_F(Listing, OfEntitiesFollowsTheOrderOfASelectionSet)
{
    const KdDbObjectId first = add(model())->objectId();
    const KdDbObjectId second = add(model())->objectId();
    GivenSet given({second, first});
    EXPECT_THAT(entities(given.name), ElementsAre(second, first));
}

TEST_F(Listing, OfPropertiesHasThoseOfTheProviderInItsOrder)
{
    const auto listed = properties(add<KdDbLight>(model())->objectId());
    std::vector<std::wstring> keys;
    for (const ListedProperty& property : listed)
        keys.push_back(property.key);
    EXPECT_THAT(keys, ElementsAre(L"\tGeneral:Color", L"\tGeneral:Layer", L"\tGeneral:Linetype",
                                  L"\tGeneral:Linetype scale", L"\tGeneral:Plot style",
                                  L"\tGeneral:Lineweight", L"\tGeneral:Transparency",
                                  L"\tGeneral:Hyperlink"));
}

TEST_F(Listing, OfPropertiesPutsEachKindOfValueIntoItsMember)
{
    const auto listed = properties(addOn<KdDbLight>(L"PIPES")->objectId());
    ASSERT_EQ(listed.size(), 8u);
    for (const ListedProperty& property : listed)
        ASSERT_EQ(property.values.size(), 1u);
    EXPECT_EQ(listed[0].values[0].restype, ResBuf::kColor);
    EXPECT_EQ(listed[0].values[0].integer, 0xC0000000);
    EXPECT_EQ(listed[1].values[0].restype, ResBuf::kLayerName);
    EXPECT_EQ(listed[1].values[0].text, L"PIPES");
    EXPECT_EQ(listed[3].values[0].restype, ResBuf::kLinetypeScale);
    EXPECT_EQ(listed[3].values[0].number, 1.0);
}

TEST_F(Listing, OfPropertiesTellsWhichCannotBeSet)
{
    const KdDbObjectId light = add<KdDbLight>(model())->objectId();
    const int pstylemode = KdDbHeaderVariables::indexOf(L"PSTYLEMODE");
    ASSERT_GE(pstylemode, 0);
    ASSERT_TRUE(drawing.header().setValue(pstylemode, std::int32_t{1}));
    EXPECT_TRUE(properties(light)[4].readOnly);
    EXPECT_FALSE(properties(light)[5].readOnly);
}

TEST_F(Listing, OfOnePropertyHasThatAlone)
{
    const auto listed = properties(addOn(L"PIPES")->objectId(), kLayerKey);
    ASSERT_EQ(listed.size(), 1u);
    EXPECT_EQ(listed[0].key, kLayerKey);
    EXPECT_EQ(listed[0].values.at(0).text, L"PIPES");
}

TEST_F(Listing, OfAPropertyThatNothingAnswersHasNoValue)
{
    const auto listed = properties(add(model())->objectId(), L"Geometry:Flavour", true);
    ASSERT_EQ(listed.size(), 1u);
    EXPECT_THAT(listed[0].values, IsEmpty());
    EXPECT_THAT(listed[0].choices, IsEmpty());
}

TEST_F(Listing, OfAPropertyHasItsChoicesWhenTheyAreAskedFor)
{
    const KdDbObjectId light = add<KdDbLight>(model())->objectId();
    EXPECT_THAT(properties(light, L"\tGeneral:Plot style")[0].choices, IsEmpty());
    const auto choices = properties(light, L"\tGeneral:Plot style", true)[0].choices;
    ASSERT_GE(choices.size(), 3u);
    EXPECT_EQ(choices[0].text, L"ByLayer");
    EXPECT_EQ(choices[1].text, L"ByBlock");
    EXPECT_EQ(choices[2].text, L"Normal");
}

TEST_F(Listing, OfAPropertyDoesNotTakeATagForAChoice)
{
    const KdDbObjectId light = add<KdDbLight>(model())->objectId();
    EXPECT_THAT(properties(light, L"\tGeneral:Linetype scale", true)[0].choices, IsEmpty());
}

TEST_F(Listing, OfPropertiesOfWhatIsNoEntityIsEmpty)
{
    EXPECT_THAT(properties(KdDbObjectId()), IsEmpty());
    EXPECT_THAT(properties(model()), IsEmpty());
}

TEST_F(Listing, OfPropertiesIsEmptyWithoutAProvider)
{
    const KdDbObjectId line = add(model())->objectId();
    QSelectUnInit();
    EXPECT_THAT(properties(line), IsEmpty());
    QSelectInit();
}

TEST_F(Listing, OfOperatorsFollowsTheKind)
{
    EXPECT_THAT(operators(ResBuf::kReal), ElementsAre(L"=", L"<>", L">", L"<", L""));
    EXPECT_THAT(operators(ResBuf::kString), ElementsAre(L"=", L"<>", L"", L"*"));
    EXPECT_THAT(operators(ResBuf::kLayerName), ElementsAre(L"=", L"<>", L""));
    EXPECT_THAT(operators(0), ElementsAre(L"=", L"<>", L""));
}

TEST_F(Listing, ChangesNoCustomColors)
{
    GivenSet given({add(model())->objectId()});
    types(given.name);
    entities(given.name);
    EXPECT_THAT(gComboValues, IsEmpty());
}

} // namespace
