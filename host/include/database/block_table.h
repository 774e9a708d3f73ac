/// Block definitions: the model, the layouts, and everything that block references refer to.
#pragma once

#include <vector>

#include <database/entity.h>
#include <database/id_iterator.h>
#include <database/tables.h>

struct KW_EXPORT BlockMembers : SymbolTableRecordMembers
{
    KdGePoint3d origin;
    KdString comments;
    KdString path; ///< of the file behind an external reference
    KdDbObjectId layout;
    bool anonymous = false;
    bool externalReference = false;
    bool overlay = false;           ///< an external reference that is not passed on
    bool referenceResolved = false; ///< the file behind an external reference was found
    std::int16_t insertUnits = 0;
    bool explodable = true;
    bool scalesUniformly = false;
};

class KdDbBlockTableRecordIterator;

/// One block definition. Its entities stand in the order of the drawing.
class KW_EXPORT KdDbBlockTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbBlockTableRecord)
    KD_DB_MEMBERS(BlockMembers)

    /// Adds a new entity to the block and so to its database, which then owns it. An entity without
    /// a layer comes to the current one. `eNotInDatabase` for a record that no database owns; the
    /// entity then stays with the caller.
    KdErrorStatus appendEntity(KdDbEntity* entity);
    /// Adds an entity that the database already owns.
    void adopt(KdDbObjectId entity) { m_entities.push_back(entity); }
    void reserve(std::size_t entities) { m_entities.reserve(entities); }

    const std::vector<KdDbObjectId>& entityIds() const { return m_entities; }
    /// A new iterator over the entities, owned by the caller.
    KdErrorStatus newIterator(KdDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                              bool skipErased = true) const;

    KdGePoint3d origin() const { return data().origin; }
    const KdString& comments() const { return data().comments; }
    KdDbObjectId getLayoutId() const { return data().layout; }
    /// True for the model and for the sheets of layouts.
    bool isLayout() const { return !data().layout.isNull(); }
    bool isAnonymous() const { return data().anonymous; }
    bool isFromExternalReference() const { return data().externalReference; }
    bool isFromOverlayReference() const { return data().externalReference && data().overlay; }
    bool isResolved() const { return data().referenceResolved; }
    /// The file behind an external reference, as the drawing names it.
    const KdString& pathName() const { return data().path; }
    /// 0 none, 1 inches, 2 feet, 4 millimetres, 6 metres and so on; what the drawing says, checked
    /// by nobody.
    int blockInsertUnits() const { return data().insertUnits; }
    bool explodable() const { return data().explodable; }
    /// True if references keep the proportions of the block.
    bool scalesUniformly() const { return data().scalesUniformly; }
    /// True if an attribute definition is among the entities. Constant time when repeated.
    bool hasAttributeDefinitions() const;

  private:
    std::vector<KdDbObjectId> m_entities;
    /// No attribute definition stands before this place.
    mutable std::size_t m_attributeDefinitionSearch = 0;
};
KD_DB_SYMBOL_TABLE(KdDbBlockTable, KdDbBlockTableRecord)

/// Walks the entities of a block. The record may be closed meanwhile.
class KW_EXPORT KdDbBlockTableRecordIterator : public KdDbIdIterator
{
  public:
    KdDbBlockTableRecordIterator(const KdDbBlockTableRecord& block, bool atBeginning,
                                 bool skipErased);

    KdErrorStatus getEntityId(KdDbObjectId& id) const { return currentId(id); }
    /// Opens the entity at the place.
    KdErrorStatus getEntity(KdDbEntity*& entity, KdDb::OpenMode mode = KdDb::kForRead,
                            bool openErased = false) const;
};

/// The names under which the model and the active layout's sheet stand in the block table.
constexpr const wchar_t* kModelSpaceName = L"*Model_Space";
constexpr const wchar_t* kPaperSpaceName = L"*Paper_Space";
