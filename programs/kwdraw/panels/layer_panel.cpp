#include <kwdraw/panels/layer_panel.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

LayerPanel::LayerPanel(QWidget* parent)
    : QWidget(parent),
      m_model(new LayerModel(this)),
      m_sorted(new QSortFilterProxyModel(this)),
      m_filter(new QLineEdit),
      m_list(new QTableView)
{
    m_filter->setObjectName("layerFilter");
    m_filter->setPlaceholderText(tr("Filter layers"));
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_sorted,
            &QSortFilterProxyModel::setFilterFixedString);
    makeList();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addWidget(makeButtons());
}

void LayerPanel::makeList()
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setFilterKeyColumn(LayerModel::kName);
    m_sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_sorted->setSortLocaleAware(false);
    m_list->setObjectName("layers");
    m_list->setAccessibleName(tr("Layers"));
    m_list->setModel(m_sorted);
    m_list->sortByColumn(LayerModel::kName, Qt::AscendingOrder);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setShowGrid(false);
    m_list->setAlternatingRowColors(true);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    QHeaderView& header = *m_list->horizontalHeader();
    header.setMinimumSectionSize(20);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(LayerModel::kName, QHeaderView::Stretch);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setHighlightSections(false);
    connect(m_list, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == LayerModel::kName)
            m_model->isolate({m_sorted->mapToSource(index).row()});
    });
    connect(m_list, &QTableView::customContextMenuRequested, this, &LayerPanel::showMenu);
}

QWidget* LayerPanel::makeButtons()
{
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const auto add = [&](const char* name, const QString& text, const QString& tip, auto act) {
        auto* button = new QToolButton;
        button->setObjectName(name);
        button->setText(text);
        button->setToolTip(tip);
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, act);
        layout->addWidget(button);
    };
    add("allLayersOn", tr("All On"), tr("Turn all layers on"), [this] { m_model->setAllOn(true); });
    add("allLayersOff", tr("All Off"), tr("Turn all layers off"),
        [this] { m_model->setAllOn(false); });
    add("isolateLayers", tr("Isolate"), tr("Show the chosen layers alone"),
        [this] { isolateChosen(); });
    add("restoreLayers", tr("As Drawn"), tr("Show what the drawing says"),
        [this] { m_model->restore(); });
    layout->addStretch(1);
    return bar;
}

void LayerPanel::focusFilter()
{
    m_filter->setFocus();
    m_filter->selectAll();
}

std::vector<int> LayerPanel::chosenRows() const
{
    std::vector<int> rows;
    for (const QModelIndex& index : m_list->selectionModel()->selectedRows())
        rows.push_back(m_sorted->mapToSource(index).row());
    return rows;
}

void LayerPanel::isolateChosen()
{
    m_model->isolate(chosenRows());
}

void LayerPanel::showMenu(const QPoint& place)
{
    QMenu menu;
    const std::vector<int> rows = chosenRows();
    const auto switchRows = [&](int column, bool on) {
        for (const int row : rows)
            m_model->setData(m_model->index(row, column), on ? Qt::Checked : Qt::Unchecked,
                             Qt::CheckStateRole);
    };
    menu.addAction(tr("Turn On"), this, [&] { switchRows(LayerModel::kOn, true); });
    menu.addAction(tr("Turn Off"), this, [&] { switchRows(LayerModel::kOn, false); });
    menu.addAction(tr("Freeze"), this, [&] { switchRows(LayerModel::kFrozen, true); });
    menu.addAction(tr("Thaw"), this, [&] { switchRows(LayerModel::kFrozen, false); });
    menu.addSeparator();
    menu.addAction(tr("Isolate"), this, [this] { isolateChosen(); });
    for (QAction* action : menu.actions())
        action->setDisabled(rows.empty());
    menu.exec(m_list->viewport()->mapToGlobal(place));
}
