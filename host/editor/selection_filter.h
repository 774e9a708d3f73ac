/// Which entities a selection takes.
#pragma once

#include <database/entity.h>

#include <optional>
#include <vector>

/// Conditions on texts of an entity that must all hold; none at all hold for every entity.
class SelectionFilter
{
  public:
    /// From a chain as `kdedSSGet` takes it; nothing if a record of it is not understood.
    static std::optional<SelectionFilter> read(const resbuf* chain);

    bool isEmpty() const { return m_conditions.empty(); }
    bool accepts(const KdDbEntity& entity) const;

  private:
    using TextOf = KdString (*)(const KdDbEntity& entity);
    struct Condition
    {
        TextOf textOf;
        KdString pattern; ///< in upper case
    };

    static TextOf textOfGroup(short group);

    std::vector<Condition> m_conditions;
};
