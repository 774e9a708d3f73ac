// Makes the objects of a drawing during the index pass.
#pragma once

#include <unordered_set>
#include <vector>

#include "drawing_source.h"
#include "handle_set.h"

namespace dxf {

/// The handle that a record states.
struct StatedHandle
{
    KdDbHandle value = 0;
    bool isThere = false;

    /// Takes the value of a group, unless one was taken before.
    void take(const Group& group);
};

/// What a record says of its owner; 0 where it names none.
struct StatedOwner
{
    KdDbHandle owner = 0;
    std::uint64_t offset = 0; ///< of the record
    KdDbHandle handle = 0;    ///< of its object
};

class ObjectMaker
{
  public:
    explicit ObjectMaker(DrawingSource& source) : m_source(source), m_builder(source.database) {}

    /// An object of a class, with the handle that its record states, or with none yet if that is
    /// missing, 0 or in use.
    KdDbObject* make(const KdRxClass* rxClass, const StatedHandle& handle, SourceRange range);

    /// Gives an object that was only referred to so far the handle and the place of its record.
    void identify(KdDbObject& object, const StatedHandle& handle, SourceRange range);

    /// A record in a table. One that was only referred to so far becomes the defined one. A second
    /// definition of a name is noted and becomes a record besides.
    KdDbSymbolTableRecord* define(KdDbSymbolTable& table, const KdRxClass* recordClass,
                                  const KdString& name, const StatedHandle& handle,
                                  SourceRange range);
    /// The record of a name, made with its defaults if the table lacks it.
    template <class Table>
    typename Table::Record* findOrMake(const KdString& name)
    {
        Table& table = m_source.database.template table<Table>();
        return static_cast<typename Table::Record*>(findOrMake(table, Table::Record::desc(), name));
    }
    KdDbSymbolTableRecord* findOrMake(KdDbSymbolTable& table, const KdRxClass* recordClass,
                                      const KdString& name);
    KdDbSymbolTableRecord* find(const KdDbSymbolTable& table, const KdString& name) const;
    /// A new record even if the table has one of that name.
    KdDbSymbolTableRecord* add(KdDbSymbolTable& table, const KdRxClass* recordClass,
                               const KdString& name, const StatedHandle& handle, SourceRange range);

    /// Remembers an owner that may not be there.
    void checkOwnerLater(const StatedOwner& stated) { m_statedOwners.push_back(stated); }
    /// Notes those that are not in the drawing; called when all handles are known.
    void noteMissingOwners();

    /// A name that no record of the table has.
    KdString freeName(const KdDbSymbolTable& table);

    template <class Members>
    Members& members(KdDbObject& object)
    {
        return static_cast<Members&>(m_builder.membersForFilling(object));
    }
    KdDbDatabaseBuilder& builder() { return m_builder; }

  private:
    KdDbHandle usable(const StatedHandle& handle, SourceRange range);

    DrawingSource& m_source;
    KdDbDatabaseBuilder m_builder;
    HandleSet m_handles;
    std::unordered_set<const KdDbObject*> m_undefined; ///< records that are only referred to
    std::vector<StatedOwner> m_statedOwners;
    int m_namesGiven = 0;
};

} // namespace dxf
