#include <kwdraw/panels/property_model.h>

#include <algorithm>

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace {

using Rows = std::vector<std::unique_ptr<PropertyRow>>;

bool isSameTree(const Rows& a, const Rows& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& two) {
        return one->kind == two->kind && one->name == two->name && isSameTree(one->rows, two->rows);
    });
}

/// What rows say, without what they are in the tree.
void copyValues(const Rows& from, const Rows& to)
{
    for (std::size_t i = 0; i < from.size(); ++i) {
        to[i]->value = from[i]->value;
        to[i]->whole = from[i]->whole;
        to[i]->varies = from[i]->varies;
        to[i]->swatch = from[i]->swatch;
        to[i]->property = from[i]->property;
        copyValues(from[i]->rows, to[i]->rows);
    }
}

QIcon swatchIcon(const QColor& color)
{
    constexpr int kSize = 16;
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QApplication::palette().color(QPalette::Mid));
    painter.setBrush(color);
    painter.drawRect(1, 1, kSize - 3, kSize - 3);
    return pixmap;
}

QVariant categoryData(const PropertyRow& row, int column, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return column == PropertyModel::kName ? row.name : QVariant();
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setBold(true);
        return font;
    }
    case Qt::BackgroundRole:
        return QApplication::palette().brush(QPalette::Button);
    case Qt::ForegroundRole:
        return QApplication::palette().brush(QPalette::ButtonText);
    default:
        return {};
    }
}

QVariant valueData(const PropertyRow& row, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return row.value;
    case Qt::ToolTipRole:
        return row.whole;
    case Qt::DecorationRole:
        return row.swatch.isValid() ? QVariant(swatchIcon(row.swatch)) : QVariant();
    case Qt::ForegroundRole:
        return row.varies ? QApplication::palette().brush(QPalette::PlaceholderText) : QVariant();
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setItalic(row.varies);
        return font;
    }
    default:
        return {};
    }
}

} // namespace

void PropertyModel::show(const std::vector<MergedProperty>& properties)
{
    Rows rows = propertyRows(properties);
    if (!isSameTree(rows, m_rows)) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    copyValues(rows, m_rows);
    const auto tell = [this](const QModelIndex& parent, const auto& self) -> void {
        const int count = rowCount(parent);
        if (count == 0)
            return;
        emit dataChanged(index(0, kName, parent), index(count - 1, kValue, parent));
        for (int row = 0; row < count; ++row)
            self(index(row, 0, parent), self);
    };
    tell({}, tell);
}

const PropertyRow* PropertyModel::rowAt(const QModelIndex& index)
{
    return static_cast<const PropertyRow*>(index.internalPointer());
}

const PropertyModel::Rows& PropertyModel::rowsOf(const QModelIndex& parent) const
{
    return parent.isValid() ? rowAt(parent)->rows : m_rows;
}

QModelIndex PropertyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, rowsOf(parent)[static_cast<std::size_t>(row)].get());
}

QModelIndex PropertyModel::parent(const QModelIndex& index) const
{
    const PropertyRow* row = rowAt(index);
    return row && row->parent ? createIndex(row->parent->place, 0, row->parent) : QModelIndex();
}

int PropertyModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(rowsOf(parent).size());
}

int PropertyModel::columnCount(const QModelIndex&) const
{
    return kColumns;
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const
{
    const PropertyRow* row = rowAt(index);
    if (!row)
        return {};
    if (row->kind == PropertyRow::Kind::Category)
        return categoryData(*row, index.column(), role);
    if (index.column() == kValue)
        return valueData(*row, role);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? row->name : QVariant();
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == kName ? tr("Property") : tr("Value");
}

void PropertyFilter::setText(const QString& text)
{
    m_text = text.trimmed();
    invalidateFilter();
}

bool PropertyFilter::matches(const PropertyRow& row) const
{
    return row.name.contains(m_text, Qt::CaseInsensitive) ||
           row.value.contains(m_text, Qt::CaseInsensitive);
}

bool PropertyFilter::matchesWithin(const PropertyRow& row) const
{
    return matches(row) || std::any_of(row.rows.begin(), row.rows.end(),
                                       [this](const auto& below) { return matchesWithin(*below); });
}

bool PropertyFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const PropertyRow* shown = PropertyModel::rowAt(sourceModel()->index(row, 0, parent));
    if (m_text.isEmpty() || matchesWithin(*shown))
        return true;
    for (const PropertyRow* above = shown->parent; above; above = above->parent) {
        if (matches(*above))
            return true;
    }
    return false;
}
