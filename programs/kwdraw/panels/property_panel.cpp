#include <kwdraw/panels/property_panel.h>

#include <algorithm>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <kwdraw/panels/property_model.h>
#include <kwdraw/panels/select_similar.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kSlice = 15ms;
constexpr qint64 kRefresh = 250; // milliseconds between two looks at what is read so far

// The column of names is made for these; the user may drag it.
constexpr const char* kUsualName = "Linetype scale";
constexpr int kBesideName = 44; // indentation and margins

QString counted(const QString& name, std::size_t count)
{
    return QString("%1 (%2)").arg(name, QLocale().toString(static_cast<qulonglong>(count)));
}

QString nameOf(const MergedType& type)
{
    return QString::fromStdWString(type.displayName.empty() ? type.className : type.displayName);
}

} // namespace

PropertyPanel::PropertyPanel(const Module& module, QWidget* parent)
    : QWidget(parent),
      m_merge(module),
      m_types(new QComboBox),
      m_similar(new QToolButton),
      m_filterEdit(new QLineEdit),
      m_tree(new QTreeView),
      m_hint(new QLabel),
      m_model(new PropertyModel(this)),
      m_filter(new PropertyFilter(this))
{
    makeHead();
    makeTree();
    m_hint->setContentsMargins(6, 3, 6, 3);
    auto* head = new QHBoxLayout;
    head->addWidget(m_types, 1);
    head->addWidget(m_similar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(head);
    layout->addWidget(m_filterEdit);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_hint);
    m_slice.setInterval(0);
    connect(&m_slice, &QTimer::timeout, this, &PropertyPanel::readOn);
    show({});
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::makeHead()
{
    m_types->setObjectName("types");
    m_types->setAccessibleName(tr("Object type"));
    m_types->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_types->setMinimumContentsLength(8);
    connect(m_types, qOverload<int>(&QComboBox::activated), this, &PropertyPanel::showRead);
    m_similar->setObjectName("similar");
    m_similar->setText(tr("Similar"));
    m_similar->setToolTip(tr("Select all objects of the same type on the same layer"));
    connect(m_similar, &QToolButton::clicked, this, [this] { emit similarRequested(entities()); });
    m_filterEdit->setObjectName("filter");
    m_filterEdit->setPlaceholderText(tr("Filter"));
    m_filterEdit->setAccessibleName(tr("Filter the properties"));
    m_filterEdit->setClearButtonEnabled(true);
    connect(m_filterEdit, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filter->setText(text);
        expandCategories();
    });
}

void PropertyPanel::makeTree()
{
    m_filter->setSourceModel(m_model);
    m_tree->setObjectName("properties");
    m_tree->setAccessibleName(tr("Properties"));
    m_tree->setModel(m_filter);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tree->setTextElideMode(Qt::ElideRight);
    m_tree->setIndentation(14);
    m_tree->header()->setStretchLastSection(true);
    m_tree->header()->resizeSection(PropertyModel::kName,
                                    fontMetrics().horizontalAdvance(kUsualName) + kBesideName);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &PropertyPanel::showMenu);
    const auto note = [this](const QModelIndex& index, bool isOpen) {
        if (m_isExpanding || index.parent().isValid() || !m_filterEdit->text().isEmpty())
            return;
        const QString name = index.data().toString();
        if (isOpen)
            m_collapsed.erase(name);
        else
            m_collapsed.insert(name);
    };
    connect(m_tree, &QTreeView::expanded, this, [note](const auto& index) { note(index, true); });
    connect(m_tree, &QTreeView::collapsed, this, [note](const auto& index) { note(index, false); });
    connect(m_model, &QAbstractItemModel::modelReset, this, &PropertyPanel::expandCategories);
    auto* copy = new QAction(tr("Copy Value"), m_tree);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &PropertyPanel::copyValue);
    m_tree->addAction(copy);
}

void PropertyPanel::show(const std::vector<KdDbObjectId>& entities)
{
    m_merge.start(entities);
    m_types->clear();
    m_merge.readOn(kSlice); // most selections are done with that
    showRead();
    if (!m_merge.isDone())
        m_slice.start();
}

void PropertyPanel::readOn()
{
    m_merge.readOn(kSlice);
    if (m_merge.isDone() || m_sinceShown.elapsed() > kRefresh)
        showRead();
    if (m_merge.isDone())
        m_slice.stop();
    else
        showHint();
}

void PropertyPanel::showRead()
{
    fillTypes();
    m_shown = m_merge.common(chosenType());
    m_model->show(m_shown);
    m_similar->setEnabled(!entities().empty());
    showHint();
    m_sinceShown.start();
}

/// Keeps the choice by its name, since there are more types with each slice.
void PropertyPanel::fillTypes()
{
    const QSignalBlocker quiet(m_types);
    const std::vector<MergedType>& types = m_merge.types();
    const int chosen = m_types->count() > 0 ? m_types->currentData().toInt() : -1;
    m_types->clear();
    if (types.size() != 1)
        m_types->addItem(
            entities().empty() ? tr("Nothing selected") : counted(tr("All"), m_merge.read()), -1);
    for (std::size_t i = 0; i < types.size(); ++i)
        m_types->addItem(counted(nameOf(types[i]), types[i].entities), static_cast<int>(i));
    m_types->setCurrentIndex(std::max(m_types->findData(chosen), 0));
    m_types->setEnabled(!types.empty());
}

const MergedType* PropertyPanel::chosenType() const
{
    const int chosen = m_types->currentData().toInt();
    return m_types->count() == 0 || chosen < 0 ? nullptr
                                               : &m_merge.types()[static_cast<std::size_t>(chosen)];
}

void PropertyPanel::showHint()
{
    const QLocale locale;
    m_hint->setVisible(!m_merge.isDone());
    m_hint->setText(tr("Reading: %1 of %2 objects so far")
                        .arg(locale.toString(static_cast<qulonglong>(m_merge.read())),
                             locale.toString(static_cast<qulonglong>(entities().size()))));
}

/// All of them while a filter shows what is left of them.
void PropertyPanel::expandCategories()
{
    m_isExpanding = true;
    const bool isFiltered = !m_filterEdit->text().isEmpty();
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        const QModelIndex category = m_filter->index(row, 0);
        m_tree->setFirstColumnSpanned(row, {}, true);
        m_tree->setExpanded(category,
                            isFiltered || m_collapsed.count(category.data().toString()) == 0);
    }
    m_isExpanding = false;
}

void PropertyPanel::copyValue()
{
    const PropertyRow* row = PropertyModel::rowAt(m_filter->mapToSource(m_tree->currentIndex()));
    if (row && row->kind != PropertyRow::Kind::Category)
        QApplication::clipboard()->setText(row->whole);
}

void PropertyPanel::addCopying(QMenu& menu, const PropertyRow& row)
{
    const auto copies = [](const QString& text) {
        return [text] { QApplication::clipboard()->setText(text); };
    };
    const bool isPart = row.kind != PropertyRow::Kind::Property;
    const QString name = isPart ? row.parent->name + ' ' + row.name : row.name;
    menu.addAction(tr("&Copy Value"), this, copies(row.whole));
    menu.addAction(tr("Copy &Row"), this, copies(name + '\t' + row.value));
}

void PropertyPanel::addSelecting(QMenu& menu, const PropertyRow& row)
{
    const MergedType* type = chosenType();
    const bool isGeneralRow = isGeneral(row.property);
    const bool isWhole =
        row.kind == PropertyRow::Kind::Property || row.kind == PropertyRow::Kind::Coordinate;
    const auto request =
        isWhole ? similarRequest(type, row.property, row.axis) : std::optional<RunRequest>();
    const auto forAll =
        isWhole ? similarRequest(nullptr, row.property, row.axis) : std::optional<RunRequest>();
    const auto runs = [this](const std::optional<RunRequest>& run) {
        return [this, run] { emit runRequested(*run); };
    };
    QAction* similar = menu.addAction(tr("&Select Similar"), this, runs(request));
    similar->setEnabled(request && (type || isGeneralRow));
    QAction* inAll = menu.addAction(tr("Select Similar in &All Types"), this, runs(forAll));
    inAll->setVisible(isGeneralRow);
    inAll->setEnabled(forAll.has_value());
    std::optional<RunRequest> others = request;
    if (others)
        others->exclude = true;
    QAction* exclude = menu.addAction(tr("&Exclude These"), this, runs(others));
    exclude->setToolTip(tr("Select everything but the objects with this value"));
    exclude->setEnabled(similar->isEnabled());
    menu.addSeparator();
    const QString text = request ? QString::fromStdWString(filterText(*request)) : QString();
    QAction* filter = menu.addAction(tr("&Quick Filter as Text"), this,
                                     [text] { QApplication::clipboard()->setText(text); });
    filter->setEnabled(similar->isEnabled());
}

QMenu* PropertyPanel::menuFor(const QModelIndex& viewIndex)
{
    const PropertyRow* row = PropertyModel::rowAt(m_filter->mapToSource(viewIndex));
    if (!row || row->kind == PropertyRow::Kind::Category)
        return nullptr;
    auto* menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    addSelecting(*menu, *row);
    menu->addSeparator();
    addCopying(*menu, *row);
    return menu;
}

void PropertyPanel::showMenu(const QPoint& place)
{
    QMenu* menu = menuFor(m_tree->indexAt(place));
    if (!menu)
        return;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_tree->viewport()->mapToGlobal(place));
}

void PropertyPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        m_tree->viewport()->update();
    QWidget::changeEvent(event);
}
