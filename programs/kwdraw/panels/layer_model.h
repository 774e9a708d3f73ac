/// The layers of the drawing with what the view shows of each.
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include <kwdraw/scene/scene.h>
#include <kwdraw/view/drawing_view.h>

/// Switches are the view's alone; the drawing keeps its own.
class LayerModel : public QAbstractTableModel
{
    Q_OBJECT
  public:
    enum Column
    {
        kOn,
        kFrozen,
        kName,
        kColumns
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Lists other layers with the drawing's own switches.
    void setLayers(const std::vector<SceneLayer>& layers);
    /// The same for a new state of the drawing: layers of the same name keep their switches.
    void updateLayers(const std::vector<SceneLayer>& layers);
    const std::vector<SceneLayer>& layers() const { return m_layers; }

    /// In the order of the layers.
    const std::vector<LayerState>& states() const { return m_states; }
    void setAllOn(bool on);
    /// Turns all others off and these on, thawed.
    void isolate(const std::vector<int>& rows);
    void restore(); ///< the drawing's own switches

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  signals:
    /// The user or a command has switched layers.
    void statesChanged();

  private:
    void changeAll();
    QVariant checkState(const LayerState& state, int column) const;

    std::vector<SceneLayer> m_layers;
    std::vector<LayerState> m_states;
};
