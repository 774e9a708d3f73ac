/// What the tests of the database share.
#pragma once

#include <vector>

#include <gtest/gtest.h>

#include <database/database.h>

namespace database_test {

/// Holds an object open for write for the length of a scope.
template <class T>
class OpenForWrite
{
  public:
    explicit OpenForWrite(KdDbObjectId id)
    {
        EXPECT_EQ(kddbOpenObject(m_object, id, KdDb::kForWrite), eOk);
    }
    ~OpenForWrite() { m_object->close(); }
    OpenForWrite(const OpenForWrite&) = delete;
    OpenForWrite& operator=(const OpenForWrite&) = delete;

    T* operator->() const { return m_object; }

  private:
    T* m_object = nullptr;
};

inline void setErased(KdDbObjectId id, bool erased = true)
{
    KdDbObject* object = nullptr;
    ASSERT_EQ(kddbOpenObject(object, id, KdDb::kForWrite, true), eOk);
    EXPECT_EQ(object->erase(erased), eOk);
    object->close();
}

/// A new entity in the model.
template <class Entity>
Entity* addToModel(KdDbDatabase& database)
{
    auto* entity = new Entity;
    const OpenForWrite<KdDbBlockTableRecord> model(database.modelSpaceId());
    EXPECT_EQ(model->appendEntity(entity), eOk);
    return entity;
}

template <class T>
T* opened(KdDbObjectId id)
{
    T* object = nullptr;
    EXPECT_EQ(kddbOpenObject(object, id), eOk);
    return object;
}

/// A record of extended data behind another one.
class ExtendedData
{
  public:
    ExtendedData& text(short restype, const wchar_t* value)
    {
        append(restype).resval.rstring = kdutNewString(value);
        return *this;
    }
    ExtendedData& number(short value)
    {
        append(1070).resval.rint = value;
        return *this;
    }
    ResbufChain take()
    {
        m_last = nullptr;
        return std::move(m_head);
    }

  private:
    resbuf& append(short restype)
    {
        resbuf* record = kdutNewRb(restype);
        if (m_last)
            m_last->rbnext = record;
        else
            m_head.reset(record);
        return *(m_last = record);
    }

    ResbufChain m_head;
    resbuf* m_last = nullptr;
};

} // namespace database_test
