// Texts whose columns are entities of their own, as they are up to R2013.
#pragma once

#include <vector>

#include "object_maker.h"

namespace dxf {

/// Finds the handles of further columns among the groups of a text.
class ColumnNames
{
  public:
    /// True if the group, the next one of the record, names a column.
    bool take(const Group& group);

  private:
    bool m_isInside = false;
};

/// Finds such texts during the index pass. The first column names the others in its extended data;
/// their letters are part of its text, and no block shows them.
class TextColumns
{
  public:
    TextColumns(DrawingSource& source, ObjectMaker& maker) : m_source(source), m_maker(maker) {}

    /// Notes a text whose record names further columns.
    void note(KdDbObject& text, SourceRange range);
    /// Ties the columns to their texts; called when all handles are known. What is no text of the
    /// same block, has columns itself or belongs to a text already stays an entity of its own.
    /// Returns how many entities became columns.
    std::size_t tie();

  private:
    struct Named
    {
        KdDbObject* text;
        std::vector<KdDbHandle> columns;
    };

    bool isFirst(const KdDbObject& text) const;
    bool tie(KdDbObject& text, KdDbHandle column);

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    std::vector<Named> m_named; ///< in the order of the file
};

} // namespace dxf
