/// Entities that are made of entities: vertices of polylines and meshes, attributes of inserts.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include <database/entity.h>

/// Walks a list of parts in the order of the drawing. The owner may be closed meanwhile, but must
/// not gain parts.
class KW_EXPORT KdDbObjectIterator
{
  public:
    explicit KdDbObjectIterator(std::span<const KdDbObjectId> ids) : m_ids(ids) {}

    void start() { m_index = 0; }
    bool done() const { return m_index >= m_ids.size(); }
    void step() { ++m_index; }
    /// The part at the place; the null id when done.
    KdDbObjectId objectId() const { return done() ? KdDbObjectId() : m_ids[m_index]; }

  private:
    std::span<const KdDbObjectId> m_ids;
    std::size_t m_index = 0;
};

/// The parts of one entity and the sequence end behind them. An empty list takes one pointer, since
/// most block references have no attributes.
class KW_EXPORT KdDbPartList
{
  public:
    /// Takes a part or the sequence end; the null id is ignored.
    void append(KdDbObjectId part);
    std::span<const KdDbObjectId> ids() const;
    /// The null id if the drawing has none.
    KdDbObjectId sequenceEnd() const;

  private:
    struct Content
    {
        std::vector<KdDbObjectId> ids;
        KdDbObjectId sequenceEnd;
    };
    std::unique_ptr<Content> m_content;
};

/// Gives an entity class parts of its own. Parts are known as soon as the drawing is indexed, so
/// they stand in the object and not in its record.
template <class Base>
class KW_EXPORT KdDbOwnerOfParts : public Base
{
  public:
    void appendPart(KdDbObjectId part) override { m_parts.append(part); }
    const KdDbPartList& parts() const { return m_parts; }

  protected:
    std::unique_ptr<KdDbObjectIterator> iteratorOverParts() const
    {
        return std::make_unique<KdDbObjectIterator>(m_parts.ids());
    }

  private:
    KdDbPartList m_parts;
};

/// The parts of any entity; null for a kind that has none.
KW_EXPORT const KdDbPartList* kddbPartsOf(const KdDbEntity& entity);
