#include <kwdraw/window/block_chooser.h>

#include <database/database.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

BlockChooser::BlockChooser(const KdDbDatabase& database, QWidget* parent)
    : QDialog(parent), m_database(database), m_filter(new QLineEdit), m_blocks(new QListWidget)
{
    setWindowTitle(tr("Open Block"));
    resize(360, 440);
    m_filter->setObjectName("blockFilter");
    m_filter->setPlaceholderText(tr("Filter blocks"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_blocks->setObjectName("blocks");
    m_blocks->setAccessibleName(tr("Blocks"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
    m_open = buttons->button(QDialogButtonBox::Open);
    m_open->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_blocks, 1);
    layout->addWidget(buttons);
    list(database);
    connect(m_filter, &QLineEdit::textChanged, this, &BlockChooser::filter);
    connect(m_blocks, &QListWidget::itemSelectionChanged, this, &BlockChooser::updateButton);
    connect(m_blocks, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    filter({});
}

void BlockChooser::list(const KdDbDatabase& database)
{
    for (const KdDbObjectId id : database.table<KdDbBlockTable>().recordIds()) {
        const OpenForRead<KdDbBlockTableRecord> block(id);
        if (!block || block->isLayout() || block->isFromExternalReference())
            continue;
        const KdString name = block->name();
        auto* item = new QListWidgetItem(
            QString::fromWCharArray(name.kwszPtr(), static_cast<int>(name.length())), m_blocks);
        item->setData(Qt::UserRole, QVariant::fromValue<qulonglong>(id.handle()));
        item->setToolTip(tr("%n objects", nullptr, static_cast<int>(block->entityIds().size())));
    }
    m_blocks->sortItems();
}

void BlockChooser::filter(const QString& part)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < m_blocks->count(); ++row) {
        QListWidgetItem* item = m_blocks->item(row);
        const bool matches = item->text().contains(part, Qt::CaseInsensitive);
        item->setHidden(!matches);
        if (matches && !first)
            first = item;
    }
    m_blocks->setCurrentItem(first);
    updateButton();
}

void BlockChooser::updateButton()
{
    m_open->setEnabled(!chosen().isNull());
}

KdDbObjectId BlockChooser::chosen() const
{
    const QListWidgetItem* item = m_blocks->currentItem();
    KdDbObjectId id;
    if (item && !item->isHidden())
        m_database.getObjectId(id, item->data(Qt::UserRole).toULongLong());
    return id;
}

bool BlockChooser::eventFilter(QObject* watched, QEvent* event)
{
    // The list can be walked while the filter is typed.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down)
            return QApplication::sendEvent(m_blocks, event);
    }
    return QDialog::eventFilter(watched, event);
}
