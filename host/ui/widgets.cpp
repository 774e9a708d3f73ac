#include <ui/widgets.h>

#include <ui/controls.h>

#include <QAbstractItemView>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>

#include <algorithm>

namespace {

/// The whole text of a row, tabs included.
constexpr int kWholeText = Qt::UserRole + 1;

} // namespace

KdUiLineEdit::KdUiLineEdit(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &KdUiLineEdit::valueChanged);
}

void KdUiListBox::addText(const QString& text)
{
    auto* row = new QListWidgetItem(QString(text).remove(QLatin1Char('\t')));
    row->setData(kWholeText, text);
    addItem(row);
}

QString KdUiListBox::textAt(int row) const
{
    const QListWidgetItem* found = item(row);
    return found ? found->data(kWholeText).toString() : QString();
}

void KdUiComboBox::setComboBoxStyle(int style)
{
    setEditable(style == static_cast<int>(CBS_DROPDOWN));
}

void KdUiComboBox::addOtherRow(const QString& text)
{
    addItem(text);
    m_hasOtherRow = true;
    enableOtherRow(false);
}

void KdUiComboBox::showPopup()
{
    enableOtherRow(true);
    // Long names are shown whole, as far as there is room.
    const int roomForScrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int wanted = view()->sizeHintForColumn(0) + roomForScrollBar;
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width() / 2));
    QComboBox::showPopup();
}

void KdUiComboBox::hidePopup()
{
    QComboBox::hidePopup();
    enableOtherRow(false);
}

// Keys and wheel pass over rows that are not enabled, as long as the list is closed.
void KdUiComboBox::enableOtherRow(bool enable)
{
    const auto* rows = qobject_cast<QStandardItemModel*>(model());
    if (rows && otherRow() >= 0)
        rows->item(otherRow())->setEnabled(enable);
}
