#include <database/dictionary.h>

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support.h"

using database_test::OpenForWrite;

namespace {

KdString keyOf(int number)
{
    return KdString(L"Key " + std::to_wstring(number));
}

/// The look-ups must be alike for a few entries and for many.
class Dictionary : public testing::TestWithParam<int>
{
  protected:
    Dictionary()
    {
        m_database.addObject(m_dictionary, {});
        const OpenForWrite<KdDbDictionary> open(m_dictionary->objectId());
        for (int i = 0; i < GetParam(); ++i) {
            m_values.push_back(newValue());
            EXPECT_EQ(open->setAt(keyOf(i), m_values.back()), eOk);
        }
    }

    KdDbObjectId newValue()
    {
        auto* value = new KdDbPlaceHolder;
        m_database.addObject(value, m_dictionary->objectId());
        return value->objectId();
    }
    KdDbObjectId at(const wchar_t* name) const
    {
        KdDbObjectId id;
        EXPECT_EQ(m_dictionary->getAt(name, id), eOk);
        return id;
    }

    KdDbDatabase m_database{KdDbDatabase::Content::Bare};
    KdDbDictionary* m_dictionary = new KdDbDictionary;
    std::vector<KdDbObjectId> m_values;
};

TEST_P(Dictionary, FindsKeysWithoutCase)
{
    for (int i = 0; i < GetParam(); ++i)
        EXPECT_EQ(at(keyOf(i).makeUpper().kwszPtr()), m_values[static_cast<std::size_t>(i)]);
}

TEST_P(Dictionary, FindsTheKeyOfAnObject)
{
    KdString name;
    for (int i = 0; i < GetParam(); ++i) {
        EXPECT_EQ(m_dictionary->nameAt(m_values[static_cast<std::size_t>(i)], name), eOk);
        EXPECT_EQ(name, keyOf(i));
    }
}

TEST_P(Dictionary, LeavesTheOutcomeAloneWhereNothingIsFound)
{
    KdDbObjectId id = m_values[0];
    EXPECT_EQ(m_dictionary->getAt(L"missing", id), eKeyNotFound);
    EXPECT_EQ(m_dictionary->getAt(nullptr, id), eKeyNotFound);
    EXPECT_EQ(id, m_values[0]);
    KdString name(L"before");
    EXPECT_EQ(m_dictionary->nameAt(newValue(), name), eKeyNotFound);
    EXPECT_EQ(m_dictionary->nameAt({}, name), eKeyNotFound);
    EXPECT_EQ(name, L"before");
}

TEST_P(Dictionary, ReplacesWhatStandsUnderAKey)
{
    EXPECT_EQ(at(L"Key 0"), m_values[0]);
    const KdDbObjectId replacement = newValue();
    {
        const OpenForWrite<KdDbDictionary> open(m_dictionary->objectId());
        EXPECT_EQ(open->setAt(L"KEY 0", replacement), eOk);
    }
    EXPECT_EQ(at(L"Key 0"), replacement);
    EXPECT_EQ(m_dictionary->numEntries(), static_cast<std::size_t>(GetParam()));
    KdString name;
    EXPECT_EQ(m_dictionary->nameAt(m_values[0], name), eKeyNotFound);
    EXPECT_EQ(m_dictionary->nameAt(replacement, name), eOk);
    EXPECT_EQ(name, L"Key 0");
}

TEST_P(Dictionary, FindsWhatWasChangedInPlace)
{
    EXPECT_EQ(at(L"Key 0"), m_values[0]);
    {
        const OpenForWrite<KdDbDictionary> open(m_dictionary->objectId());
        auto& entries = open->edit().entries;
        EXPECT_EQ(at(L"Key 0"), m_values[0]);
        entries[0].name = L"Renamed";
        EXPECT_EQ(at(L"Renamed"), m_values[0]);
    }
    EXPECT_EQ(at(L"Renamed"), m_values[0]);
    KdDbObjectId id;
    EXPECT_EQ(m_dictionary->getAt(L"Key 0", id), eKeyNotFound);
}

TEST_P(Dictionary, IsChangedWhileOpenForWriteAlone)
{
    EXPECT_EQ(m_dictionary->setAt(L"new", m_values[0]), eNotOpenForWrite);
    const OpenForRead<KdDbDictionary> open(m_dictionary->objectId());
    EXPECT_EQ(m_dictionary->setAt(L"new", m_values[0]), eNotOpenForWrite);
    EXPECT_EQ(m_dictionary->numEntries(), static_cast<std::size_t>(GetParam()));
}

TEST_P(Dictionary, AnswersWithTheFirstOfEntriesAlike)
{
    {
        const OpenForWrite<KdDbDictionary> open(m_dictionary->objectId());
        open->edit().entries.push_back({L"key 0", newValue()});
        open->edit().entries.push_back({L"Another name", m_values[0]});
    }
    EXPECT_EQ(at(L"Key 0"), m_values[0]);
    KdString name;
    EXPECT_EQ(m_dictionary->nameAt(m_values[0], name), eOk);
    EXPECT_EQ(name, L"Key 0");
}

TEST_P(Dictionary, IsWalkedInItsOrder)
{
    const std::unique_ptr<KdDbDictionaryIterator> walker(m_dictionary->newIterator());
    for (int i = 0; i < GetParam(); ++i, walker->next()) {
        ASSERT_FALSE(walker->done());
        EXPECT_EQ(walker->name(), keyOf(i));
        EXPECT_EQ(walker->objectId(), m_values[static_cast<std::size_t>(i)]);
    }
    EXPECT_TRUE(walker->done());
}

INSTANTIATE_TEST_SUITE_P(Sizes, Dictionary, testing::Values(1, 16, 17, 500),
                         [](const auto& row) { return "of" + std::to_string(row.param); });

TEST(EmptyDictionary, HasNothingToFindOrWalk)
{
    const KdDbDictionary dictionary;
    KdDbObjectId id;
    EXPECT_EQ(dictionary.getAt(L"", id), eKeyNotFound);
    EXPECT_EQ(dictionary.numEntries(), 0u);
    EXPECT_TRUE(std::unique_ptr<KdDbDictionaryIterator>(dictionary.newIterator())->done());
}

TEST(DictionaryEntry, IsNullWithoutTheDictionaryOrTheKey)
{
    KdDbDatabase database;
    auto* dictionary = new KdDbDictionary;
    auto* value = new KdDbPlaceHolder;
    database.addObject(value, {});
    dictionary->edit().entries.push_back({L"Key", value->objectId()});
    database.addObject(dictionary, {});
    EXPECT_EQ(kddbDictionaryEntry(dictionary->objectId(), L"KEY"), value->objectId());
    EXPECT_TRUE(kddbDictionaryEntry(dictionary->objectId(), L"Other").isNull());
    EXPECT_TRUE(kddbDictionaryEntry(value->objectId(), L"Key").isNull());
    EXPECT_TRUE(kddbDictionaryEntry({}, L"Key").isNull());
    EXPECT_TRUE(kddbExtensionEntry(*value, L"Key").isNull());
    EXPECT_EQ(database.openCount(), 0);
}

TEST(DictionaryWithDefault, NamesItsDefault)
{
    KdDbDatabase database;
    auto* value = new KdDbPlaceHolder;
    database.addObject(value, {});
    KdDbDictionaryWithDefault dictionary;
    EXPECT_TRUE(dictionary.defaultId().isNull());
    dictionary.edit().defaultId = value->objectId();
    EXPECT_EQ(dictionary.defaultId(), value->objectId());
    EXPECT_TRUE(dictionary.isKindOf(KdDbDictionary::desc()));
}

} // namespace
