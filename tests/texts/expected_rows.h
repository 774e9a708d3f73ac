/// What a provider is expected to answer, typed as a table.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <providers/property_row.h>

#include "../providers/support.h"

namespace provider_test {

constexpr std::size_t kGeneralKeys = 8;

struct ExpectedRow
{
    int id;
    const wchar_t* key;
    bool readOnly;
    std::string value; ///< in the words of `inWords`
    /// What follows the value when choices are asked for.
    std::vector<std::string> choices = {};
    /// The value as a display text, where that is another one.
    std::string displayed = {};
    /// What follows the display text when choices are asked for as well, where that is other.
    std::vector<std::string> displayedChoices = {};
    /// What belongs to the value itself: the further points of a row of points.
    std::vector<std::string> further = {};
};

/// A row of points, in the words of `inWords`.
inline ExpectedRow pointRow(int id, const wchar_t* key, const std::vector<std::string>& points)
{
    ExpectedRow row{id, key, false, points.front()};
    row.further.assign(points.begin() + 1, points.end());
    return row;
}

/// Texts as the records in which they are offered.
inline std::vector<std::string> texts(std::initializer_list<const char*> names)
{
    std::vector<std::string> records;
    for (const char* name : names)
        records.push_back("5005 " + std::string(name));
    return records;
}

/// What follows the value of a tagged row.
inline std::vector<std::string> tagged(int number)
{
    return {"280 " + std::to_string(number)};
}

/// The value in all four ways in which it may be asked for.
inline void expectValue(KdDbEntityPE& provider, const KdDbEntity& entity, const ExpectedRow& row)
{
    const bool differs = !row.displayed.empty();
    for (const bool asDisplayText : {false, true}) {
        for (const bool withChoices : {false, true}) {
            std::vector<std::string> expected{asDisplayText && differs ? row.displayed : row.value};
            expected.insert(expected.end(), row.further.begin(), row.further.end());
            if (withChoices) {
                const bool other = asDisplayText && !row.displayedChoices.empty();
                const auto& more = other ? row.displayedChoices : row.choices;
                expected.insert(expected.end(), more.begin(), more.end());
            }
            const Answer answer = ask(provider, &entity, row.key, asDisplayText, withChoices);
            EXPECT_EQ(answer.status, 1) << row.id;
            EXPECT_EQ(answer.chain, expected) << row.id << ' ' << asDisplayText << withChoices;
        }
    }
}

/// Ids and keys of a provider's table in their order, and the value of each.
template <class Provider>
void expectTable(const KdDbEntity& entity, const std::vector<ExpectedRow>& expected)
{
    Provider provider;
    const auto rows = Provider::rows();
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(rows[i].key.id, expected[i].id);
        EXPECT_STREQ(rows[i].key.defaultText, expected[i].key);
        expectValue(provider, entity, expected[i]);
    }
}

/// The keys that a provider lists behind the general ones, with a flag for each.
template <class Provider>
void expectListing(const KdDbEntity* entity, std::span<const ExpectedRow> expected)
{
    Provider provider;
    const Listing listing = list(provider, entity);
    EXPECT_EQ(listing.status, 0);
    ASSERT_EQ(listing.keys.size(), kGeneralKeys + expected.size());
    ASSERT_EQ(listing.flags.size(), listing.keys.size());
    EXPECT_EQ(listing.keys[kGeneralKeys - 1], L"\tGeneral:Hyperlink");
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(listing.keys[kGeneralKeys + i], expected[i].key);
        EXPECT_EQ(listing.flags[kGeneralKeys + i], expected[i].readOnly) << expected[i].id;
    }
}

/// A null entity, one of another class and an unknown key are not answered.
template <class Provider>
void expectRefusals(const KdDbEntity& entity, const KdDbEntity& foreign, const wchar_t* ownKey)
{
    Provider provider;
    const auto refused = testing::ElementsAre("5000 nothing");
    for (const wchar_t* key : {ownKey, L"\tGeneral:Layer"}) {
        for (const KdDbEntity* other : {static_cast<const KdDbEntity*>(nullptr), &foreign}) {
            const Answer answer = ask(provider, other, key);
            EXPECT_EQ(answer.status, 0);
            EXPECT_THAT(answer.chain, refused);
        }
    }
    const Answer unknown = ask(provider, &entity, L"No:such key");
    EXPECT_EQ(unknown.status, 0);
    EXPECT_THAT(unknown.chain, refused);
    EXPECT_EQ(ask(provider, &entity, L"\tGeneral:Layer").status, 1);
}

} // namespace provider_test
