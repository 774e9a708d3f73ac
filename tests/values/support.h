/// What several tests of the values share.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <database/database.h>
#include <platform/resources.h>

#include <support/messages.h>

/// Makes a resource library current for a scope.
class CurrentResources
{
  public:
    explicit CurrentResources(const wchar_t* name) : m_loaded(SetCurrentResourceName(name))
    {
        EXPECT_TRUE(m_loaded) << "the library of texts is missing";
    }
    ~CurrentResources()
    {
        if (m_loaded)
            RestorePreviousResource();
    }
    CurrentResources(const CurrentResources&) = delete;
    CurrentResources& operator=(const CurrentResources&) = delete;

  private:
    bool m_loaded;
};

/// The module's own texts in English, and a library that lacks them.
constexpr const wchar_t* kEnglishTexts = L"KwQselectUtilRes.dll";
constexpr const wchar_t* kOtherTexts = L"KwValuesTest.dll";

/// Adds a record to a table as one of an external reference.
template <class Table>
void addDependentRecord(KdDbDatabase& drawing, const wchar_t* name)
{
    typename Table::Record* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, drawing.addRecord<Table>(name)->objectId(), KdDb::kForWrite),
              eOk);
    record->edit().dependent = true;
    record->close();
}

/// A standard drawing that is the working one.
class DrawingTest : public testing::Test
{
  protected:
    DrawingTest();
    ~DrawingTest() override;

    void setInteger(const wchar_t* variable, int value);

    KdDbDatabase m_drawing;
};

/// No drawing at all.
class NoDrawingTest : public testing::Test
{
  protected:
    NoDrawingTest() { kddbHostApplicationServices()->setWorkingDatabase(nullptr); }
};
