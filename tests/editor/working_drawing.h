/// A small drawing to work in, for the tests of the editor.
#pragma once

#include <gtest/gtest.h>

#include <editor/selection_sets.h>
#include <editor/system_variables.h>

#include <database/database.h>
#include <entities/line.h>
#include <entities/viewport.h>

#include <array>
#include <vector>

namespace editor_test {

using Ids = std::vector<KdDbObjectId>;
using Name = std::array<long, 2>;

template <class Entity>
KdDbObjectId addTo(KdDbObjectId blockId, Entity* entity)
{
    KdDbBlockTableRecord* block = nullptr;
    EXPECT_EQ(kddbOpenObject(block, blockId, KdDb::kForWrite), eOk);
    EXPECT_EQ(block->appendEntity(entity), eOk);
    block->close();
    return entity->objectId();
}

inline KdDbObjectId addLine(KdDbObjectId blockId)
{
    return addTo(blockId, new KdDbLine);
}

inline void erase(KdDbObjectId id)
{
    KdDbEntity* entity = nullptr;
    ASSERT_EQ(kddbOpenObject(entity, id, KdDb::kForWrite), eOk);
    entity->erase();
    entity->close();
}

inline Name nameOf(KdDbObjectId id)
{
    Name name{};
    EXPECT_EQ(kddbGetKdsName(name.data(), id), eOk);
    return name;
}

inline KdDbObjectId idOf(const Name& name)
{
    KdDbObjectId id;
    EXPECT_EQ(kddbGetObjectId(id, name.data()), eOk);
    return id;
}

inline Name makeSet(const Ids& members = {})
{
    Name set{};
    EXPECT_EQ(kdedSSAdd(nullptr, nullptr, set.data()), RTNORM);
    for (const KdDbObjectId id : members)
        EXPECT_EQ(kdedSSAdd(nameOf(id).data(), set.data(), set.data()), RTNORM);
    return set;
}

/// The members of a set by its name, in order.
inline Ids membersOf(const Name& set)
{
    long length = -1;
    EXPECT_EQ(kdedSSLength(set.data(), &length), RTNORM);
    Ids members;
    for (long number = 0; number < length; ++number) {
        Name name{};
        EXPECT_EQ(kdedSSName(set.data(), number, name.data()), RTNORM);
        members.push_back(idOf(name));
    }
    return members;
}

inline Ids takeMembersOf(const Name& set)
{
    const Ids members = membersOf(set);
    EXPECT_EQ(kdedSSFree(set.data()), RTNORM);
    return members;
}

inline int setShort(const wchar_t* variable, short value)
{
    resbuf record{};
    record.restype = RTSHORT;
    record.resval.rint = value;
    return kdedSetVar(variable, &record);
}

inline short getShort(const wchar_t* variable)
{
    resbuf record{};
    EXPECT_EQ(kdedGetVar(variable, &record), RTNORM);
    EXPECT_EQ(record.restype, RTSHORT);
    return record.resval.rint;
}

/// A standard drawing that is the working one for the length of a test. Nothing may stay open and
/// no selection set may be left over.
class WorkingDrawing : public testing::Test
{
  protected:
    WorkingDrawing() { kddbHostApplicationServices()->setWorkingDatabase(&drawing); }
    ~WorkingDrawing() override { kddbHostApplicationServices()->setWorkingDatabase(nullptr); }

    void TearDown() override
    {
        EXPECT_EQ(drawing.openCount(), 0);
        EXPECT_EQ(kdedSelectionSetsInUse(), m_setsBefore);
    }

    KdDbObjectId model() const { return drawing.modelSpaceId(); }
    KdDbObjectId sheet() const { return drawing.activeSheetId(); }

    KdDbDatabase drawing;

  private:
    long m_setsBefore = kdedSelectionSetsInUse();
};

} // namespace editor_test
