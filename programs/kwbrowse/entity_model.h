/// The entities of the current space as a table.
#pragma once

#include <QAbstractTableModel>
#include <QItemSelection>

#include <unordered_map>
#include <vector>

#include <common/module.h>

class EntityModel : public QAbstractTableModel
{
    Q_OBJECT
  public:
    enum Column
    {
        kHandle,
        kType,
        kLayer,
        kColumns
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Lists the current space of the working drawing anew.
    void list(const Module& module);

    KdDbObjectId idOf(int row) const { return m_rows[static_cast<std::size_t>(row)].id; }
    /// The rows of entities, in few ranges. Entities that are not listed are left out.
    QItemSelection rowsOf(const std::vector<KdDbObjectId>& ids) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    struct Row
    {
        KdDbObjectId id;
        QString type;
    };

    static void add(void* context, const quick_select::Entity& entity);

    std::vector<Row> m_rows;
    std::unordered_map<KdDbObjectId, int> m_rowOf;
};
