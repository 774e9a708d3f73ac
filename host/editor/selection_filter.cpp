#include "selection_filter.h"

#include <editor/wildcard.h>

#include <algorithm>

namespace {

struct GroupRow
{
    short group;
    KdString (*textOf)(const KdDbEntity& entity);
};

constexpr GroupRow kGroups[] = {
    {0, [](const KdDbEntity& entity) { return KdString(entity.isA()->dxfName()); }},
    {6, [](const KdDbEntity& entity) { return entity.linetype(); }},
    {8, [](const KdDbEntity& entity) { return entity.layer(); }},
};

} // namespace

SelectionFilter::TextOf SelectionFilter::textOfGroup(short group)
{
    for (const GroupRow& row : kGroups)
        if (row.group == group)
            return row.textOf;
    return nullptr;
}

std::optional<SelectionFilter> SelectionFilter::read(const resbuf* chain)
{
    SelectionFilter filter;
    for (; chain; chain = chain->rbnext) {
        const TextOf textOf = textOfGroup(chain->restype);
        if (!textOf || !chain->resval.rstring)
            return {};
        filter.m_conditions.push_back({textOf, KdString(chain->resval.rstring).makeUpper()});
    }
    return filter;
}

bool SelectionFilter::accepts(const KdDbEntity& entity) const
{
    return std::all_of(m_conditions.begin(), m_conditions.end(), [&](const Condition& condition) {
        const KdString text = condition.textOf(entity).makeUpper();
        return kdutWcMatch(text.kwszPtr(), condition.pattern.kwszPtr()) == RTNORM;
    });
}
