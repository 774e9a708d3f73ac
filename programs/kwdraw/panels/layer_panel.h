/// The list of layers, with their switches for the view.
#pragma once

#include <QWidget>

#include <vector>

#include <kwdraw/panels/layer_model.h>

class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

class LayerPanel : public QWidget
{
    Q_OBJECT
  public:
    explicit LayerPanel(QWidget* parent = nullptr);

    LayerModel& model() { return *m_model; }
    const LayerModel& model() const { return *m_model; }
    void focusFilter();

  private:
    void makeList();
    QWidget* makeButtons();
    /// The rows of the model that the user has chosen.
    std::vector<int> chosenRows() const;
    void isolateChosen();
    void showMenu(const QPoint& place);

    LayerModel* m_model;
    QSortFilterProxyModel* m_sorted;
    QLineEdit* m_filter;
    QTableView* m_list;
};
