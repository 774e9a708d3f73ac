// What the providers of dimensions list. The files in the folder "lists" tell ids, flags of a plain
// dimension and keys.
#include <algorithm>

#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

std::vector<ExpectedKey> joined(std::initializer_list<std::string> names)
{
    std::vector<ExpectedKey> all;
    for (const std::string& name : names) {
        const auto part = readList(name);
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

std::vector<std::wstring> keysOf(const std::vector<ExpectedKey>& list)
{
    std::vector<std::wstring> keys;
    for (const ExpectedKey& each : list)
        keys.push_back(each.key);
    return keys;
}

std::vector<bool> flagsOf(const std::vector<ExpectedKey>& list)
{
    std::vector<bool> flags;
    for (const ExpectedKey& each : list)
        flags.push_back(each.readOnly);
    return flags;
}

class ListOfDimension : public DimensionTest, public testing::WithParamInterface<Kind>
{
};

TEST_P(ListOfDimension, HoldsTheCommonKeysAndThenItsOwn)
{
    const auto expected = joined({"general", "common", GetParam().name});
    const Listing listed = listing(GetParam().number);
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.keys, keysOf(expected));
    EXPECT_EQ(listed.flags, flagsOf(expected));
}

TEST_P(ListOfDimension, HasAnIdForEachKey)
{
    std::vector<int> expected;
    for (const ExpectedKey& each : readList(GetParam().name))
        expected.push_back(each.id);
    std::vector<int> listed;
    for (const PropertyRow& row : dimensionKindRows(GetParam().number))
        if (row.listed(&dimension(GetParam().number)))
            listed.push_back(row.key.id);
    EXPECT_EQ(listed, expected);
}

TEST_P(ListOfDimension, OfADynamicConstraintIsCutDown)
{
    constrain(dimension(GetParam().number), true);
    auto names = readList("constraint");
    names.push_back({77503, false, L"Text:Text rotation"});
    std::vector<bool> flags = flagsOf(readList("general")); // those of the keys taken out stay
    flags.push_back(true);
    for (const bool flag : flagsOf(names))
        flags.push_back(flag);
    if (!GetParam().stopsOnCompleteList) {
        for (const ExpectedKey& each : readList(GetParam().name)) {
            names.push_back(each);
            flags.push_back(each.readOnly);
        }
    }
    const Listing listed = listing(GetParam().number);
    EXPECT_EQ(listed.status, 1);
    EXPECT_EQ(listed.keys, keysOf(names));
    EXPECT_EQ(listed.flags, flags);
}

TEST_P(ListOfDimension, OfAnAnnotationalConstraintHasTheKeysOfConstraintsBesides)
{
    constrain(dimension(GetParam().number), false);
    auto expected = joined({"general", "common", GetParam().name});
    const auto constraint = readList("constraint");
    const auto behindAssociative = static_cast<std::ptrdiff_t>(readList("general").size()) + 1;
    expected.insert(expected.begin() + behindAssociative, constraint.begin(), constraint.end());
    const Listing listed = listing(GetParam().number);
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.keys, keysOf(expected));
    EXPECT_EQ(listed.flags, flagsOf(expected));
}

TEST_P(ListOfDimension, IsThatOfADynamicConstraintBeforeAnythingElseIsAsked)
{
    constrain(dimension(GetParam().number), true);
    KdDbDimension_Extension base;
    const Listing listed = provider_test::list(base, &dimension(GetParam().number));
    EXPECT_EQ(listed.status, 1);
    EXPECT_EQ(listed.keys.size(), 7u);
    EXPECT_EQ(listed.flags.size(), 16u);
}

TEST_P(ListOfDimension, IsWholeForEveryListedKey)
{
    constrain(dimension(GetParam().number), false);
    for (const std::wstring& key : listing(GetParam().number).keys) {
        for (const int choice : {0, 1, 2, 3}) {
            const Answer given =
                answer(GetParam().number, key.c_str(), (choice & 1) != 0, (choice & 2) != 0);
            const bool needsMore = key == L"Text:Measurement" || key == L"\tGeneral:Hyperlink";
            EXPECT_TRUE(given.status == 1 || needsMore) << provider_test::ascii(key);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ListOfDimension, testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

class ListsOfDimensions : public DimensionTest
{
  protected:
    /// The flag beside a key, in a list where the two run side by side.
    bool flag(DimensionKind kind, const wchar_t* key)
    {
        const Listing listed = listing(kind);
        const auto found = std::ranges::find(listed.keys, key);
        EXPECT_NE(found, listed.keys.end()) << provider_test::ascii(key);
        return listed.flags.at(static_cast<std::size_t>(found - listed.keys.begin()));
    }
    std::vector<bool> flags(DimensionKind kind, const std::vector<const wchar_t*>& keys)
    {
        std::vector<bool> all;
        for (const wchar_t* key : keys)
            all.push_back(flag(kind, key));
        return all;
    }
    void setAlternate(bool on) { setInStyle(KdDbDimVar::dimalt, std::int32_t{on}); }
};

TEST_F(ListsOfDimensions, OfTheBaseHoldTheCommonKeysAlone)
{
    KdDbDimension_Extension base;
    const Listing listed = provider_test::list(base, &dimension(DimensionKind::Radial));
    EXPECT_EQ(listed.keys, keysOf(joined({"general", "common"})));
}

TEST_F(ListsOfDimensions, OfTheBaseAreGeneralForOtherEntities)
{
    KdDbDimension_Extension base;
    KdDbLine line;
    for (const KdDbEntity* entity :
         {static_cast<const KdDbEntity*>(&line), static_cast<const KdDbEntity*>(nullptr)}) {
        const Listing listed = provider_test::list(base, entity);
        EXPECT_EQ(listed.status, 0);
        EXPECT_EQ(listed.keys, keysOf(readList("general")));
    }
}

TEST_F(ListsOfDimensions, GoOnWithTheirOwnKeysWithoutAnEntity)
{
    for (const Kind& kind : kKinds) {
        if (kind.number == DimensionKind::Rotated)
            continue;
        const Listing listed = provider_test::list(provider(kind.number), nullptr);
        EXPECT_EQ(listed.keys, keysOf(joined({"general", kind.name}))) << kind.name;
    }
}

TEST_F(ListsOfDimensions, OfRotatedOnesAreEmptyForAnyOtherEntity)
{
    for (const KdDbEntity* entity :
         {static_cast<const KdDbEntity*>(nullptr),
          static_cast<const KdDbEntity*>(&dimension(DimensionKind::Aligned))}) {
        const Listing listed = provider_test::list(provider(DimensionKind::Rotated), entity);
        EXPECT_EQ(listed.status, 0);
        EXPECT_TRUE(listed.keys.empty());
        EXPECT_TRUE(listed.flags.empty());
    }
}

TEST_F(ListsOfDimensions, OfRotatedOnesAreEmptyWithoutAStyle)
{
    eraseStyle();
    EXPECT_TRUE(listing(DimensionKind::Rotated).keys.empty());
    EXPECT_TRUE(listing(DimensionKind::Rotated).flags.empty());
    EXPECT_FALSE(listing(DimensionKind::Aligned).keys.empty());
}

TEST_F(ListsOfDimensions, OfPartialArcsHaveTheEndsTwice)
{
    const auto single = listing(DimensionKind::Arc);
    changeAs<KdDbArcDimension>(DimensionKind::Arc, [](auto& members) { members.partial = true; });
    const auto twice = listing(DimensionKind::Arc);
    ASSERT_EQ(twice.keys.size(), single.keys.size() + 2);
    EXPECT_EQ(twice.keys[single.keys.size()], L"Geometry:1st Dim definition point");
    EXPECT_EQ(twice.keys[single.keys.size() + 1], L"Geometry:2nd Dim definition point");
    EXPECT_TRUE(twice.flags.back());
}

TEST_F(ListsOfDimensions, OfPartialArcsWithALeaderHaveFourKeysTwice)
{
    changeAs<KdDbArcDimension>(DimensionKind::Arc, [](auto& members) {
        members.partial = true;
        members.leader = true;
    });
    const auto listed = listing(DimensionKind::Arc);
    const auto own = keysOf(readList("arc"));
    for (const wchar_t* key :
         {L"Geometry:1st Dim definition point", L"Geometry:2nd Dim definition point",
          L"Geometry:Leader definition point 1", L"Geometry:Leader definition point 2"}) {
        EXPECT_EQ(std::ranges::count(listed.keys, key), 2);
        EXPECT_EQ(std::ranges::count(own, key), 1);
    }
    EXPECT_EQ(listed.flags.size(), listed.keys.size());
    EXPECT_EQ(listed.keys.back(), L"Geometry:Leader definition point 2");
}

const std::vector<const wchar_t*> kCommonFlagged = {L"Primary units:Suppress leading zeros",
                                                    L"Primary units:Suppress trailing zeros",
                                                    L"Tolerances:Tolerance limit lower",
                                                    L"Tolerances:Tolerance limit upper",
                                                    L"Tolerances:Tolerance precision",
                                                    L"Tolerances:Tolerance suppress leading zeros",
                                                    L"Tolerances:Tolerance suppress trailing zeros",
                                                    L"Tolerances:Tolerance text height"};

TEST_F(ListsOfDimensions, FlagZerosOfArchitecturalUnits)
{
    set(KdDbDimVar::dimlunit, 4);
    EXPECT_THAT(flags(DimensionKind::Radial, kCommonFlagged),
                ElementsAre(true, true, false, false, false, true, true, false));
}

TEST_F(ListsOfDimensions, FlagTolerancesThatAreShown)
{
    for (const KdDbDimVar variable : {KdDbDimVar::dimtol, KdDbDimVar::dimlim}) {
        set(KdDbDimVar::dimtol, 0);
        set(variable, 1);
        EXPECT_THAT(flags(DimensionKind::Radial, kCommonFlagged),
                    ElementsAre(false, false, true, true, true, true, true, true));
    }
}

const std::vector<const wchar_t*> kRotatedFlagged = {
    L"Primary units:Suppress zero feet",
    L"Primary units:Suppress zero inches",
    L"Alternate units:Alt format",
    L"Alternate units:Alt precision",
    L"Alternate units:Alt round",
    L"Alternate units:Alt scale factor",
    L"Alternate units:Alt prefix",
    L"Alternate units:Alt suffix",
    L"Alternate units:Alt sub-units factor",
    L"Alternate units:Alt sub-units suffix",
    L"Alternate units:Alt suppress leading zeros",
    L"Alternate units:Alt suppress trailing zeros",
    L"Alternate units:Alt suppress zero feet",
    L"Alternate units:Alt suppress zero inches",
    L"Tolerances:Tolerance suppress zero feet",
    L"Tolerances:Tolerance suppress zero inches",
    L"Tolerances:Alt tolerance precision",
    L"Tolerances:Alt tolerance suppress leading zeros",
    L"Tolerances:Alt tolerance suppress trailing zeros",
    L"Tolerances:Alt tolerance suppress zero feet",
    L"Tolerances:Alt tolerance suppress zero inches"};

struct RotatedCase
{
    const char* name;
    int unit;
    bool alternate;
    int alternateUnit;
    bool tolerances;
    const char* flags; ///< of the keys above, 1 for true
};

// In groups: feet, alternate, its decimals, its feet, feet of tolerances, and of alternate
// tolerances the precision, decimals and feet.
const RotatedCase kRotatedCases[] = {
    {"plain", 2, false, 2, false, "11 11111111 11 11 11 1 11 11"},
    {"engineering", 3, false, 2, false, "00 11111111 11 11 11 1 11 11"},
    {"architecturalWithTolerances", 4, false, 2, true, "00 11111111 11 11 00 1 11 11"},
    {"alternateDecimal", 2, true, 2, false, "11 00000000 00 11 11 1 11 11"},
    {"alternateEngineering", 2, true, 3, true, "11 00000000 00 00 11 0 00 00"},
    {"alternateArchitectural", 2, true, 4, true, "11 00000000 11 00 11 0 11 00"},
    {"alternateUnstacked", 3, true, 6, true, "00 00000000 11 00 00 0 11 00"},
    {"alternateFractional", 4, true, 5, false, "00 00000000 00 11 11 1 11 11"},
};

class FlagsOfRotated : public ListsOfDimensions, public testing::WithParamInterface<RotatedCase>
{
};

TEST_P(FlagsOfRotated, AreSetWhereAPropertyDoesNotApply)
{
    const RotatedCase& row = GetParam();
    set(KdDbDimVar::dimlunit, row.unit);
    set(KdDbDimVar::dimaltu, row.alternateUnit);
    set(KdDbDimVar::dimtol, row.tolerances);
    set(KdDbDimVar::dimalt, !row.alternate); // that of the dimension does not count
    setAlternate(row.alternate);
    std::vector<bool> expected;
    for (const char* c = row.flags; *c; ++c)
        if (*c != ' ')
            expected.push_back(*c == '1');
    EXPECT_EQ(flags(DimensionKind::Rotated, kRotatedFlagged), expected);
}

INSTANTIATE_TEST_SUITE_P(, FlagsOfRotated, testing::ValuesIn(kRotatedCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ListsOfDimensions, FlagAlternateUnitsByTheKind)
{
    for (const bool alternate : {false, true}) {
        setAlternate(alternate);
        EXPECT_TRUE(flag(DimensionKind::Aligned, L"Alternate units:Alt format"));
        EXPECT_TRUE(flag(DimensionKind::Aligned, L"Tolerances:Alt tolerance precision"));
        EXPECT_FALSE(flag(DimensionKind::Arc, L"Alternate units:Alt format"));
        EXPECT_TRUE(flag(DimensionKind::Arc, L"Tolerances:Alt tolerance precision"));
    }
}

TEST_F(ListsOfDimensions, OfArcsTakeTheirFlagsFromRotatedDimensions)
{
    const auto flagsFor = [&] {
        const Listing listed =
            provider_test::list(provider(DimensionKind::Arc), &dimension(DimensionKind::Rotated));
        const auto found = std::ranges::find(listed.keys, L"Alternate units:Alt prefix");
        return bool(listed.flags.at(static_cast<std::size_t>(found - listed.keys.begin())));
    };
    EXPECT_FALSE(flagsFor());
    setAlternate(true);
    EXPECT_TRUE(flagsFor());
}

TEST_F(ListsOfDimensions, WithoutItsTextShowTheDefaultOfTheTwoLineMeasurement)
{
    const auto rows = dimensionKindRows(DimensionKind::TwoLine);
    std::vector<std::wstring> texts;
    for (const PropertyRow& row : rows)
        if (row.key.id == 76588)
            texts.emplace_back(row.key.defaultText);
    EXPECT_THAT(texts, ElementsAre(L"Text:Measurement", L"Text:Text Measurement"));
}

TEST_F(ListsOfDimensions, WithoutItsTextDoNotAnswerTheMeasurementUnderTheListedKey)
{
    LoadResourceDll(L"KrxOPMRes.dll");
    ASSERT_TRUE(SetCurrentResourceName(L"KrxOPMRes.dll")); // which has no such number
    const Answer listed = answer(DimensionKind::TwoLine, L"Text:Text Measurement");
    EXPECT_EQ(listed.status, 0);
    EXPECT_THAT(listed.chain, ElementsAre("5000 nothing"));
    EXPECT_THAT(answer(DimensionKind::TwoLine, L"Text:Measurement").chain, ElementsAre("5001 0"));
    RestorePreviousResource();
    EXPECT_FALSE(messages.shown.empty());
    messages.shown.clear();
}

TEST_F(ListsOfDimensions, AreAnsweredForTheirOwnKindAlone)
{
    KdDbLine line;
    for (const Kind& kind : kKinds) {
        const auto& other = dimension(kind.number == DimensionKind::Arc ? DimensionKind::Radial
                                                                        : DimensionKind::Arc);
        for (const KdDbEntity* entity :
             {static_cast<const KdDbEntity*>(nullptr), static_cast<const KdDbEntity*>(&line),
              static_cast<const KdDbEntity*>(&other)}) {
            const Answer given =
                provider_test::ask(provider(kind.number), entity, L"Misc:Dim style");
            EXPECT_EQ(given.status, 0) << kind.name;
            EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
        }
        const Answer unknown = answer(kind.number, L"Misc:dim style");
        EXPECT_EQ(unknown.status, 0);
        EXPECT_THAT(unknown.chain, ElementsAre("5000 nothing"));
    }
}

} // namespace
