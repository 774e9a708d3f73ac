#include <kwdraw/panels/saved_filters.h>

#include <system_error>

#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <kwdraw/document/sentences.h>

namespace {

enum Column
{
    kName,
    kFilter
};

/// What an item stands for.
enum ItemKind
{
    kHeading = QTreeWidgetItem::UserType,
    kNamed,
    kRecent
};

/// The name in the file, while another one is typed over it.
constexpr int kNameRole = Qt::UserRole;

QString qt(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

QTreeWidgetItem* addHeading(QTreeWidget& list, const QString& text)
{
    auto* item = new QTreeWidgetItem(&list, {text}, kHeading);
    QFont font = list.font();
    font.setBold(true);
    item->setFont(kName, font);
    item->setFlags(Qt::ItemIsEnabled);
    item->setFirstColumnSpanned(true);
    item->setExpanded(true);
    return item;
}

} // namespace

SavedFilters::SavedFilters(QWidget* parent, const std::filesystem::path& file,
                           const std::filesystem::path& recent)
    : QWidget(parent), m_recent(recent), m_list(new QTreeWidget), m_problem(new QLabel)
{
    makeList();
    m_problem->setObjectName("problem");
    m_problem->setWordWrap(true);
    m_problem->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // for marked places
    m_problem->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* buttons = new QGridLayout;
    m_run = addButton(tr("&Run"), "run", &SavedFilters::run);
    m_save = addButton(tr("&Save Last"), "save", &SavedFilters::saveLast);
    m_save->setToolTip(tr("Give the last quick select a name"));
    m_rename = addButton(tr("Re&name"), "rename", &SavedFilters::rename);
    m_remove = addButton(tr("&Delete"), "delete", &SavedFilters::remove);
    buttons->addWidget(m_run, 0, 0);
    buttons->addWidget(m_save, 0, 1);
    buttons->addWidget(m_rename, 1, 0);
    buttons->addWidget(m_remove, 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_problem);
    layout->addLayout(buttons);
    m_file.readAll(file);
    watch();
    list();
    reload();
}

SavedFilters::~SavedFilters() = default;

void SavedFilters::makeList()
{
    m_list->setObjectName("filters");
    m_list->setAccessibleName(tr("Filters"));
    m_list->setHeaderLabels({tr("Name"), tr("Filter")});
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setIndentation(12);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(true);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &SavedFilters::run);
    connect(m_list, &QTreeWidget::itemChanged, this, &SavedFilters::takeName);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &SavedFilters::enableButtons);
    const auto onKey = [this](int key, void (SavedFilters::*act)()) {
        auto* shortcut = new QShortcut(key, m_list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    onKey(Qt::Key_Return, &SavedFilters::run);
    onKey(Qt::Key_Enter, &SavedFilters::run);
    onKey(Qt::Key_Delete, &SavedFilters::remove);
}

QPushButton* SavedFilters::addButton(const QString& text, const char* name,
                                     void (SavedFilters::*act)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

/// The folder as well: a file that is replaced is another one afterwards, and one that is not there
/// may come.
void SavedFilters::watch()
{
    constexpr int kSettling = 50; // milliseconds in which a file is written and renamed
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettling);
    connect(&m_settle, &QTimer::timeout, this, &SavedFilters::reload);
    const auto changed = [this] { m_settle.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changed);
    std::error_code noCode;
    std::filesystem::create_directories(m_file.path().parent_path(), noCode);
    m_watcher.addPath(QString::fromStdString(m_file.path().parent_path().string()));
}

void SavedFilters::reload()
{
    m_watcher.addPath(QString::fromStdString(m_file.path().string()));
    if (m_list->findChild<QLineEdit*>()) // a name that is being typed stays
        return m_settle.start();
    const std::vector<FilterFile::Filter> before = m_file.filters();
    const FilterFile::Problems problems = m_file.readAll(m_file.path());
    const bool isOtherRecent = m_recent.readAgain();
    if (isOtherRecent || m_file.filters() != before)
        list();
    if (isOtherRecent)
        emit recentChanged();
    if (problems == m_wrongLines)
        return;
    m_wrongLines = problems;
    QString told;
    for (const std::string& problem : problems)
        told += (told.isEmpty() ? "" : "\n") + QString::fromStdString(problem);
    tell(told);
}

void SavedFilters::list()
{
    const QTreeWidgetItem* current = m_list->currentItem();
    const QString name = current ? current->data(kName, kNameRole).toString() : QString();
    m_isListing = true;
    m_list->clear();
    addNamed();
    addRecent();
    m_list->resizeColumnToContents(kName);
    if (QTreeWidgetItem* again = name.isEmpty() ? nullptr : itemOf(name))
        m_list->setCurrentItem(again);
    m_isListing = false;
    enableButtons();
}

void SavedFilters::addNamed()
{
    QTreeWidgetItem* heading = addHeading(*m_list, tr("Saved"));
    for (const FilterFile::Filter& filter : m_file.filters()) {
        auto* item = new QTreeWidgetItem(heading, {qt(filter.name), qt(filter.text)}, kNamed);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setData(kName, kNameRole, qt(filter.name));
        item->setToolTip(kFilter, qt(filter.text));
    }
}

void SavedFilters::addRecent()
{
    QTreeWidgetItem* heading = addHeading(*m_list, tr("Recent"));
    for (const std::wstring& text : m_recent.texts()) {
        auto* item = new QTreeWidgetItem(heading, {qt(text)}, kRecent);
        item->setFirstColumnSpanned(true);
        item->setToolTip(kName, qt(text));
    }
}

void SavedFilters::enableButtons()
{
    const QTreeWidgetItem* item = m_list->currentItem();
    const bool isChosen = item && item->isSelected();
    m_run->setEnabled(isChosen && item->type() != kHeading);
    m_rename->setEnabled(isChosen && item->type() == kNamed);
    m_remove->setEnabled(isChosen && item->type() == kNamed);
    m_save->setEnabled(!m_last.empty() || (isChosen && item->type() == kRecent));
}

void SavedFilters::run()
{
    const QTreeWidgetItem* item = m_list->currentItem();
    if (!item || item->type() == kHeading)
        return;
    tell({});
    if (item->type() == kNamed)
        emit runRequested('@' + item->data(kName, kNameRole).toString());
    else
        emit runRequested(item->text(kName));
}

void SavedFilters::noteRun(const std::wstring& text)
{
    m_last = text;
    m_recent.note(text);
    list();
    emit recentChanged();
}

void SavedFilters::forgetRecent()
{
    m_recent.clear();
    list();
    emit recentChanged();
}

void SavedFilters::tell(const QString& problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

std::wstring SavedFilters::freeName() const
{
    const std::wstring base = tr("filter").toStdWString();
    for (int number = 1;; ++number) {
        const std::wstring name = base + std::to_wstring(number);
        if (!m_file.find(name))
            return name;
    }
}

QTreeWidgetItem* SavedFilters::itemOf(const QString& name) const
{
    const QTreeWidgetItem* heading = m_list->topLevelItem(0);
    for (int i = 0; i < heading->childCount(); ++i) {
        if (heading->child(i)->data(kName, kNameRole).toString() == name)
            return heading->child(i);
    }
    return nullptr;
}

/// A recent one that is chosen, otherwise the last run; with a name that the user may change.
void SavedFilters::saveLast()
{
    const QTreeWidgetItem* item = m_list->currentItem();
    const bool isRecent = item && item->isSelected() && item->type() == kRecent;
    const std::wstring text = isRecent ? item->text(kName).toStdWString() : m_last;
    const std::wstring name = freeName();
    std::string problem;
    const bool isSaved = m_file.save(name, text, problem);
    keepOrTell(isSaved, problem);
    if (!isSaved)
        return;
    QTreeWidgetItem* saved = itemOf(qt(name));
    m_list->setCurrentItem(saved);
    m_list->editItem(saved, kName);
}

void SavedFilters::rename()
{
    m_list->editItem(m_list->currentItem(), kName);
}

void SavedFilters::takeName(QTreeWidgetItem* item)
{
    const QString before = item->data(kName, kNameRole).toString();
    const QString typed = item->text(kName).trimmed();
    if (m_isListing || item->type() != kNamed || typed == before)
        return;
    std::string problem;
    if (m_file.rename(before.toStdWString(), typed.toStdWString(), problem))
        item->setData(kName, kNameRole, typed);
    tell(inUserLanguage(QString::fromStdString(problem)));
    // The editor still stands in the list.
    QTimer::singleShot(0, this, &SavedFilters::list);
}

void SavedFilters::remove()
{
    const QTreeWidgetItem* item = m_list->currentItem();
    if (!item || item->type() != kNamed)
        return;
    std::string problem;
    const bool isDone =
        m_file.remove(item->data(kName, kNameRole).toString().toStdWString(), problem);
    keepOrTell(isDone, problem);
}

/// The list shows the file again in either case.
void SavedFilters::keepOrTell(bool isDone, const std::string& problem)
{
    list();
    tell(isDone ? QString() : inUserLanguage(QString::fromStdString(problem)));
}
