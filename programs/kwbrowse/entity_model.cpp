#include <kwbrowse/entity_model.h>

#include <database/entity.h>

#include <algorithm>

namespace {

QString layerOf(KdDbObjectId id)
{
    const OpenForRead<KdDbEntity> entity(id);
    if (!entity)
        return {};
    const KdString layer = entity->layer();
    return QString::fromWCharArray(layer.kwszPtr(), static_cast<int>(layer.length()));
}

} // namespace

void EntityModel::add(void* context, const quick_select::Entity& entity)
{
    auto& model = *static_cast<EntityModel*>(context);
    const wchar_t* const name = *entity.displayName ? entity.displayName : entity.className;
    model.m_rowOf.emplace(entity.id, static_cast<int>(model.m_rows.size()));
    model.m_rows.push_back({entity.id, QString::fromWCharArray(name)});
}

void EntityModel::list(const Module& module)
{
    beginResetModel();
    m_rows.clear();
    m_rowOf.clear();
    module.listEntities(nullptr, add, this);
    endResetModel();
}

QItemSelection EntityModel::rowsOf(const std::vector<KdDbObjectId>& ids) const
{
    std::vector<int> rows;
    for (const KdDbObjectId id : ids) {
        const auto found = m_rowOf.find(id);
        if (found != m_rowOf.end())
            rows.push_back(found->second);
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t end = first + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.append(
            QItemSelectionRange(index(rows[first], 0), index(rows[end - 1], kColumns - 1)));
        first = end;
    }
    return selection;
}

int EntityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EntityModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant EntityModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case kHandle:
        return QString::number(row.id.handle(), 16).toUpper();
    case kType:
        return row.type;
    case kLayer:
        return layerOf(row.id);
    default:
        return {};
    }
}

QVariant EntityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const kTitles[] = {"Handle", "Type", "Layer"};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= kColumns)
        return {};
    return QString::fromLatin1(kTitles[section]);
}
