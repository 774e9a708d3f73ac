/// A drawing in memory.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <database/arena.h>
#include <database/block_table.h>
#include <database/dictionary.h>
#include <database/header_variables.h>
#include <database/layout.h>

/// Fills the members of objects that so far are only indexed. Implemented by drawing readers.
class KW_EXPORT KdDbMemberSource
{
  public:
    virtual ~KdDbMemberSource();
    /// Fills `members`, a fresh record of the object's kind, from the object's place in the source.
    virtual void readMembers(const KdDbObject& object, ObjectMembers& members) = 0;
    /// The bytes of a part of the source, as they stand in it, for as long as the database lives;
    /// empty where there are none. Here: always empty.
    virtual std::string_view bytes(SourceRange range) const;
    /// False once others have changed the source, so that members read since then may be wrong. To
    /// be asked after reading and before use is made of the outcome. Here: always true.
    virtual bool isIntact() const;
};

/// Owns all objects of one drawing. Objects live until the database goes.
class KW_EXPORT KdDbDatabase
{
  public:
    /// Which parts a new database begins with.
    enum class Content
    {
        Standard, ///< the standard records, the model and one empty layout
        Bare,     ///< the empty tables alone, for a reader that brings the rest
    };

    explicit KdDbDatabase(Content content = Content::Standard);
    ~KdDbDatabase();
    KdDbDatabase(const KdDbDatabase&) = delete;
    KdDbDatabase& operator=(const KdDbDatabase&) = delete;

    /// Opens one of the drawing's tables, chosen by the type of the pointer.
    template <class Table>
    KdErrorStatus getSymbolTable(Table*& table, KdDb::OpenMode mode)
    {
        return kddbOpenObject(table, tableId(Table::desc()), mode);
    }
    /// The table of that class, without opening it; the null id for another class.
    KdDbObjectId tableId(const KdRxClass* tableClass) const;
    /// The table itself, for code that builds the database.
    template <class Table>
    Table& table()
    {
        return static_cast<Table&>(tableObject(Table::desc()));
    }
    template <class Table>
    const Table& table() const
    {
        return static_cast<const Table&>(tableObject(Table::desc()));
    }

    KdDbObjectId modelSpaceId() const;
    /// The block of the sheet that is shown while TILEMODE is 0.
    KdDbObjectId activeSheetId() const;
    void setActiveSheet(KdDbObjectId block) { m_activeSheet = block; }
    KdDbObjectId namedObjectsDictionaryId() const { return m_namedObjects; }
    /// Opens the dictionary of plot style names; `eKeyNotFound` if the drawing has none.
    KdErrorStatus getPlotStyleNameDictionary(KdDbDictionary*& dictionary, KdDb::OpenMode mode);
    /// Opens the dictionary of materials; `eKeyNotFound` if the drawing has none.
    KdErrorStatus getMaterialDictionary(KdDbDictionary*& dictionary, KdDb::OpenMode mode);
    /// The object of a handle; `eKeyNotFound` if there is none, `id` untouched.
    KdErrorStatus getObjectId(KdDbObjectId& id, KdDbHandle handle) const;

    KdDbHeaderVariables& header() { return m_header; }
    const KdDbHeaderVariables& header() const { return m_header; }

    /// Opens not yet closed, over all objects.
    long long openCount() const { return m_openCount; }
    /// All objects, in the order in which they were added.
    const std::vector<KdDbObject*>& objects() const { return m_objects; }
    /// Where the objects came from; null for a drawing that was made in memory.
    const KdDbMemberSource* source() const { return m_source.get(); }

    /// Takes a new object over and gives it the next free handle.
    KdErrorStatus addObject(KdDbObject* object, KdDbObjectId owner);
    /// A new record in a table, with a name that the table must not have.
    template <class Table>
    typename Table::Record* addRecord(const KdString& name)
    {
        auto* record = new typename Table::Record;
        record->edit().name = name;
        addObject(record, tableId(Table::desc()));
        table<Table>().add(record->objectId(), name);
        return record;
    }
    /// The record of that name, made with its defaults if the table lacks it.
    template <class Table>
    KdDbObjectId findOrAddRecord(const KdString& name)
    {
        KdDbObjectId id;
        if (table<Table>().getIdAt(name.kwszPtr(), id) != eOk)
            id = addRecord<Table>(name)->objectId();
        return id;
    }

  private:
    friend class KdDbObject;
    friend class KdDbDatabaseBuilder;
    friend KdErrorStatus kddbOpenKdDbObject(KdDbObject*&, KdDbObjectId, int, bool);

    KdErrorStatus openNamedDictionary(const wchar_t* name, KdDbDictionary*& dictionary,
                                      KdDb::OpenMode mode) const;
    KdDbObject* findTable(const KdRxClass* tableClass) const;
    KdDbObject& tableObject(const KdRxClass* tableClass) const;
    void own(KdDbObject& object);
    void noteHandle(KdDbObject& object);
    void sortHandles() const;

    KdDbArena m_arena;
    std::vector<std::unique_ptr<KdDbArena>> m_moreArenas;
    std::vector<KdDbObject*> m_objects;
    mutable std::vector<KdDbObject*> m_byHandle;
    mutable bool m_handlesAreSorted = true;
    KdDbHandle m_nextHandle = 1;
    std::vector<KdDbObject*> m_tables;
    KdDbObjectId m_namedObjects;
    KdDbObjectId m_activeSheet;
    KdDbHeaderVariables m_header;
    std::unique_ptr<KdDbMemberSource> m_source;
    mutable long long m_openCount = 0;
};

/// What a drawing reader may do beyond the public operations: build objects in the arena, place
/// them, and answer for members that have not been read yet.
class KW_EXPORT KdDbDatabaseBuilder
{
  public:
    explicit KdDbDatabaseBuilder(KdDbDatabase& database) : m_database(database) {}

    /// A new object of a concrete class in the database's arena. `handle` 0: it has none yet and
    /// gets one from `finish`. `rxClass` must have a factory.
    KdDbObject* make(const KdRxClass* rxClass, KdDbHandle handle, SourceRange source);
    void setOwner(KdDbObject& object, KdDbObjectId owner);
    /// Gives its handle to an object that has none yet. It must not be in use.
    void setHandle(KdDbObject& object, KdDbHandle handle);
    void setSourceRange(KdDbObject& object, SourceRange source);
    void setNamedObjectsDictionary(KdDbObjectId id);
    void setSource(std::unique_ptr<KdDbMemberSource> source);
    void reserve(std::size_t objects);
    /// Members of `object` as they stand, without reading them from the source: for records that
    /// the reader fills at once.
    ObjectMembers& membersForFilling(KdDbObject& object);
    /// More storage, which lives as long as the database, for a thread of its own.
    KdDbArena& addArena();
    /// Gives an object of the database's arena that has no members yet a record in `arena`, filled
    /// by `fill`, which answers whether the object may keep it. Several threads may do so at the
    /// same time with different objects and arenas.
    template <class Fill>
    void fill(KdDbObject& object, KdDbArena& arena, Fill fill)
    {
        if (object.m_members || !object.m_inArena)
            return;
        object.m_members = object.makeMembers(&arena);
        if (fill(*object.m_members))
            return;
        object.m_members->~ObjectMembers();
        object.m_members = nullptr;
    }
    /// Hands out handles to objects that have none, above all that are in use, and adds what every
    /// drawing must have and this one lacks: layer "0", the standard linetypes and text style, the
    /// model and a sheet, the dictionary of named objects.
    void finish();

  private:
    KdDbDictionary& namedObjects();
    template <class T>
    T& findOrAddEntry(KdDbDictionary& dictionary, const wchar_t* name);
    void enter(KdDbDictionary& dictionary, const wchar_t* name, KdDbObjectId id);
    void addStandardRecords();
    void addLayout(KdDbDictionary& layouts, const wchar_t* blockName, const wchar_t* layoutName,
                   int tabOrder);
    void addPlotStyles(KdDbDictionary& named);

    KdDbDatabase& m_database;
};

/// The services that the running program gives to everything that works on drawings.
class KW_EXPORT KdDbHostApplicationServices
{
  public:
    /// The drawing that commands work on, or null. Not owned.
    KdDbDatabase* workingDatabase() const { return m_workingDatabase; }
    void setWorkingDatabase(KdDbDatabase* database) { m_workingDatabase = database; }
    KdDbLayoutManager* layoutManager() { return m_hasLayoutManager ? &m_layoutManager : nullptr; }
    /// A program without layouts may say so.
    void setHasLayoutManager(bool has) { m_hasLayoutManager = has; }

    /// Has `notice` called with every database that is about to go, while its objects still stand.
    void addGoodbyeNotice(std::function<void(KdDbDatabase&)> notice);
    void sayGoodbye(KdDbDatabase& database);

  private:
    std::vector<std::function<void(KdDbDatabase&)>> m_goodbyeNotices;
    KdDbDatabase* m_workingDatabase = nullptr;
    KdDbLayoutManager m_layoutManager;
    bool m_hasLayoutManager = true;
};

/// The services object; never null.
KW_EXPORT KdDbHostApplicationServices* kddbHostApplicationServices();
