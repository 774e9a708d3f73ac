/// The properties of what is selected.
#pragma once

#include <optional>
#include <set>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <common/run_request.h>
#include <kwdraw/panels/property_merge.h>

class PropertyFilter;
class PropertyModel;
struct PropertyRow;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;
class QTreeView;

/// Shows what the selected entities have in common, by category, with "*Varies*" where they differ.
/// Large selections are read a slice at a time, and what is there so far is shown meanwhile.
class PropertyPanel : public QWidget
{
    Q_OBJECT
  public:
    /// @param module  outlives the panel
    explicit PropertyPanel(const Module& module, QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// Shows other entities. They must stay in the working drawing until others are shown, so a
    /// drawing that goes is preceded by `show({})`.
    void show(const std::vector<KdDbObjectId>& entities);
    using QWidget::show;

    const std::vector<KdDbObjectId>& entities() const { return m_merge.entities(); }
    bool isComplete() const { return m_merge.isDone(); }
    /// What is shown, in its order, without the filter of the panel.
    const std::vector<MergedProperty>& properties() const { return m_shown; }

    /// What can be done with a row of the view; the caller owns the menu. Null for a category.
    QMenu* menuFor(const QModelIndex& viewIndex);

  signals:
    /// A run is asked for; `carryOut` in select_similar.h does it.
    void runRequested(const RunRequest& request);
    /// Entities like these are asked for; `selectSimilar` in select_similar.h does it.
    void similarRequested(const std::vector<KdDbObjectId>& entities);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void makeHead();
    void makeTree();
    void readOn();
    void showRead();
    void fillTypes();
    void showHint();
    void expandCategories();
    const MergedType* chosenType() const;
    void addCopying(QMenu& menu, const PropertyRow& row);
    void addSelecting(QMenu& menu, const PropertyRow& row);
    void copyValue();
    void showMenu(const QPoint& place);

    PropertyMerge m_merge;
    std::vector<MergedProperty> m_shown;
    std::set<QString> m_collapsed; ///< categories that the user has closed
    bool m_isExpanding = false;
    QTimer m_slice;
    QElapsedTimer m_sinceShown;

    QComboBox* m_types;
    QToolButton* m_similar;
    QLineEdit* m_filterEdit;
    QTreeView* m_tree;
    QLabel* m_hint;
    PropertyModel* m_model;
    PropertyFilter* m_filter;
};
