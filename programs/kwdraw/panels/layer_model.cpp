#include <kwdraw/panels/layer_model.h>

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr int kSwatch = 14; // pixels

QPixmap swatch(const SceneLayer& layer)
{
    const qreal scale = qApp->devicePixelRatio();
    QPixmap picture(QSize(kSwatch, kSwatch) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const QPalette palette = QApplication::palette();
    painter.setPen(palette.color(QPalette::Mid));
    painter.setBrush(layer.isForeground ? palette.color(QPalette::Text)
                                        : QColor::fromRgb(layer.color));
    painter.drawRect(QRectF(1.5, 1.5, kSwatch - 3, kSwatch - 3));
    return picture;
}

LayerState ownState(const SceneLayer& layer)
{
    return {layer.on, layer.frozen};
}

} // namespace

void LayerModel::setLayers(const std::vector<SceneLayer>& layers)
{
    beginResetModel();
    m_layers = layers;
    m_states.clear();
    for (const SceneLayer& layer : m_layers)
        m_states.push_back(ownState(layer));
    endResetModel();
    emit statesChanged();
}

void LayerModel::updateLayers(const std::vector<SceneLayer>& layers)
{
    QHash<QString, LayerState> before;
    for (std::size_t i = 0; i < m_layers.size(); ++i)
        before.insert(m_layers[i].name.toLower(), m_states[i]);
    beginResetModel();
    m_layers = layers;
    m_states.clear();
    for (const SceneLayer& layer : m_layers)
        m_states.push_back(before.value(layer.name.toLower(), ownState(layer)));
    endResetModel();
    emit statesChanged();
}

void LayerModel::changeAll()
{
    if (!m_layers.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    emit statesChanged();
}

void LayerModel::setAllOn(bool on)
{
    for (LayerState& state : m_states)
        state.on = on;
    changeAll();
}

void LayerModel::isolate(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    for (LayerState& state : m_states)
        state.on = false;
    for (const int row : rows)
        m_states[static_cast<std::size_t>(row)] = {true, false};
    changeAll();
}

void LayerModel::restore()
{
    std::transform(m_layers.begin(), m_layers.end(), m_states.begin(), ownState);
    changeAll();
}

int LayerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_layers.size());
}

int LayerModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant LayerModel::checkState(const LayerState& state, int column) const
{
    const bool checked = column == kOn ? state.on : state.frozen;
    return checked ? Qt::Checked : Qt::Unchecked;
}

QVariant LayerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const bool isName = index.column() == kName;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? m_layers[row].name : QVariant();
    case Qt::DecorationRole:
        return isName ? swatch(m_layers[row]) : QVariant();
    case Qt::CheckStateRole:
        return isName ? QVariant() : checkState(m_states[row], index.column());
    case Qt::ToolTipRole:
        return isName && m_layers[row].locked ? tr("%1 (locked)").arg(m_layers[row].name)
                                              : headerData(index.column(), Qt::Horizontal, role);
    default:
        return {};
    }
}

bool LayerModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() == kName)
        return false;
    LayerState& state = m_states[static_cast<std::size_t>(index.row())];
    (index.column() == kOn ? state.on : state.frozen) = value.toInt() == Qt::Checked;
    emit dataChanged(index, index);
    emit statesChanged();
    return true;
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumns)
        return {};
    const QString titles[] = {tr("On"), tr("Frozen"), tr("Layer")};
    const QString tips[] = {tr("Shown in the view; the drawing stays as it is"),
                            tr("Frozen in the view: neither shown nor found by Select All"),
                            tr("Double-click to show this layer alone")};
    if (role == Qt::DisplayRole)
        return titles[section];
    return role == Qt::ToolTipRole ? tips[section] : QVariant();
}

Qt::ItemFlags LayerModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == kName ? usual : usual | Qt::ItemIsUserCheckable;
}
