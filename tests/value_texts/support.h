/// What the tests of number texts share.
#pragma once

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <database/database.h>

/// A standard drawing that is the working one, in decimal units.
class UnitsTest : public testing::Test
{
  protected:
    UnitsTest()
    {
        kddbHostApplicationServices()->setWorkingDatabase(&m_drawing);
        set(L"LUNITS", 2);
        set(L"LUPREC", 4);
        set(L"DIMZIN", 0);
        set(L"UNITMODE", 0);
        set(L"AUNITS", 0);
        set(L"AUPREC", 0);
        set(L"ANGBASE", 0.0);
        set(L"ANGDIR", 0);
    }
    ~UnitsTest() override { kddbHostApplicationServices()->setWorkingDatabase(nullptr); }

    template <class Value>
    void set(const wchar_t* variable, Value value)
    {
        const int index = KdDbHeaderVariables::indexOf(variable);
        ASSERT_GE(index, 0);
        ASSERT_TRUE(m_drawing.header().setValue(index, std::move(value)));
    }

    KdDbDatabase m_drawing;
};

/// Names the rows of a parameterised test by their member `name`.
struct RowName
{
    template <class Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const
    {
        return info.param.name;
    }
};
