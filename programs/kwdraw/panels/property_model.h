/// The properties of the selection as a tree for a view.
#pragma once

#include <QAbstractItemModel>
#include <QSortFilterProxyModel>

#include <kwdraw/panels/property_rows.h>

class PropertyModel : public QAbstractItemModel
{
    Q_OBJECT
  public:
    enum Column
    {
        kName,
        kValue,
        kColumns
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Shows other properties. Where they are those that are shown, only their values change.
    void show(const std::vector<MergedProperty>& properties);
    /// The row at an index of this model; null for an invalid one.
    static const PropertyRow* rowAt(const QModelIndex& index);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    using Rows = std::vector<std::unique_ptr<PropertyRow>>;

    const Rows& rowsOf(const QModelIndex& parent) const;

    Rows m_rows;
};

/// Leaves the rows whose name or value holds a text, with all that is above and below them.
class PropertyFilter : public QSortFilterProxyModel
{
    Q_OBJECT
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text);

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

  private:
    bool matches(const PropertyRow& row) const;
    bool matchesWithin(const PropertyRow& row) const;

    QString m_text;
};
