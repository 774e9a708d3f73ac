#include "support.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace dimension_test {

// clang-format off
const std::array<Kind, kDimensionKinds> kKinds{{
    {DimensionKind::Rotated, "rotated", true},          {DimensionKind::Aligned, "aligned", true},
    {DimensionKind::Arc, "arc", false},                 {DimensionKind::TwoLine, "two_line", true},
    {DimensionKind::ThreePoint, "three_point", true},   {DimensionKind::Radial, "radial", true},
    {DimensionKind::RadialLarge, "radial_large", false}, {DimensionKind::Diametric, "diametric", true},
    {DimensionKind::Ordinate, "ordinate", false},
}};
// clang-format on

const Kind& kindOf(DimensionKind number)
{
    return kKinds[static_cast<std::size_t>(number)];
}

std::vector<ExpectedKey> readList(const std::string& name)
{
    const auto folder = std::filesystem::path(KW_SOURCE_DIR) / "tests/dimensions/lists";
    std::ifstream file(folder / (name + ".txt"));
    EXPECT_TRUE(file) << name;
    std::vector<ExpectedKey> keys;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        ExpectedKey expected{};
        std::string flag;
        std::string key;
        words >> expected.id >> flag >> std::ws;
        std::getline(words, key);
        if (key.starts_with("\\t"))
            key.replace(0, 2, "\t");
        expected.readOnly = flag == "r";
        expected.key.assign(key.begin(), key.end());
        keys.push_back(expected);
    }
    EXPECT_FALSE(keys.empty()) << name;
    return keys;
}

bool isListed(DimensionKind kind, const std::wstring& key)
{
    static std::map<std::string, std::vector<ExpectedKey>> lists;
    for (const char* name : {"common", kindOf(kind).name}) {
        auto& list = lists[name];
        if (list.empty())
            list = readList(name);
        if (std::ranges::any_of(list, [&](const ExpectedKey& each) { return each.key == key; }))
            return true;
    }
    return false;
}

DimensionTest::DimensionTest()
    : style(drawing.findOrAddRecord<KdDbDimStyleTable>(L"Test")),
      m_dimensions{add<KdDbRotatedDimension>(),       add<KdDbAlignedDimension>(),
                   add<KdDbArcDimension>(),           add<KdDb2LineAngularDimension>(),
                   add<KdDb3PointAngularDimension>(), add<KdDbRadialDimension>(),
                   add<KdDbRadialDimensionLarge>(),   add<KdDbDiametricDimension>(),
                   add<KdDbOrdinateDimension>()},
      m_providers{std::make_unique<KdDbRotatedDimension_Extension>(),
                  std::make_unique<KdDbAlignedDimension_Extension>(),
                  std::make_unique<KdDbArcDimension_Extension>(),
                  std::make_unique<KdDbAngularDimension_Extension>(),
                  std::make_unique<KdDb3PointAngularDimension_Extension>(),
                  std::make_unique<KdDbRadialDimension_Extension>(),
                  std::make_unique<KdDbRadialLargeDimension_Extension>(),
                  std::make_unique<KdDbDiametricDimension_Extension>(),
                  std::make_unique<KdDbOrdinateDimension_Extension>()}
{
    for (KdDbDimension* each : m_dimensions)
        change(each, [this](DimensionMembers& members) { members.dimension.style = style; });
}

void DimensionTest::set(KdDbDimVar variable, const KdDbDimValue& value)
{
    for (KdDbDimension* each : m_dimensions)
        change(each, [&](DimensionMembers& members) {
            members.dimension.overrides.set(variable, value);
        });
}

void DimensionTest::setInStyle(KdDbDimVar variable, const KdDbDimValue& value)
{
    KdDbDimStyleTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, style, KdDb::kForWrite), eOk);
    record->edit().variables.set(variable, value);
    record->close();
}

void DimensionTest::eraseStyle()
{
    KdDbDimStyleTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, style, KdDb::kForWrite), eOk);
    record->erase();
    record->close();
}

template <class Object>
Object* DimensionTest::addObject(KdDbObjectId owner)
{
    auto* object = new Object;
    EXPECT_EQ(drawing.addObject(object, owner), eOk);
    return object;
}

KdDbAssocVariable* DimensionTest::constrain(KdDbDimension& constrained, bool dynamic)
{
    auto* variable = addObject<KdDbAssocVariable>({});
    auto* dependency = addObject<KdDbAssocDependency>({});
    auto* body = addObject<KdDbAssocDimDependencyBody>(dependency->objectId());
    change(variable, [](AssocVariableMembers& members) {
        members.name = L"d1";
        members.expression = L"2*d2";
        members.description = L"Width of the plate";
        members.value = 45.0;
    });
    change(body, [&](AssocDimDependencyBodyMembers& m) { m.variable = variable->objectId(); });
    change(dependency, [&](AssocDependencyMembers& members) {
        members.body = body->objectId();
        members.reads = false;
        members.writes = true;
    });
    change(&constrained, [&](DimensionMembers& members) {
        members.links.edit().reactors = {dependency->objectId()};
    });
    KdDbDimension* opened = nullptr;
    EXPECT_EQ(kddbOpenObject(opened, constrained.objectId(), KdDb::kForWrite), eOk);
    opened->setLayer(
        drawing.findOrAddRecord<KdDbLayerTable>(dynamic ? L"*ADSK_CONSTRAINTS" : L"0"));
    opened->close();
    return variable;
}

Answer DimensionTest::answer(DimensionKind kind, const wchar_t* key, bool asDisplayText,
                             bool withChoices)
{
    return provider_test::ask(provider(kind), &dimension(kind), key, asDisplayText, withChoices);
}

void DimensionTest::expectOfAll(const wchar_t* key, const Words& expected, bool asDisplayText,
                                bool withChoices)
{
    int kinds = 0;
    for (const Kind& kind : kKinds) {
        if (!isListed(kind.number, key))
            continue;
        ++kinds;
        const Answer given = answer(kind.number, key, asDisplayText, withChoices);
        EXPECT_EQ(given.status, 1) << kind.name;
        EXPECT_EQ(given.chain, expected) << kind.name;
    }
    EXPECT_GT(kinds, 0);
}

Listing DimensionTest::listing(DimensionKind kind)
{
    return provider_test::list(provider(kind), &dimension(kind));
}

} // namespace dimension_test
