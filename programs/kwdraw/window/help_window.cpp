#include <kwdraw/window/help_window.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <kwdraw/window/help_browser.h>
#include <kwdraw/window/help_pages.h>

namespace {

constexpr int kPlace = Qt::UserRole; ///< of a row of the contents
constexpr int kLevels = 2;           ///< of headings that the contents list

QToolButton* arrow(Qt::ArrowType type, const QString& name)
{
    auto* button = new QToolButton;
    button->setArrowType(type);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    button->setEnabled(false);
    return button;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent),
      m_contents(new QTreeWidget),
      m_page(new HelpBrowser),
      m_wanted(new QLineEdit),
      m_outcome(new QLabel)
{
    setObjectName("helpWindow");
    setWindowTitle(tr("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(920, 680);
    makeContents();
    auto* parts = new QSplitter;
    parts->addWidget(m_contents);
    parts->addWidget(m_page);
    parts->setStretchFactor(1, 1);
    parts->setSizes({260, 660});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(makeBar());
    layout->addWidget(parts, 1);
    addKey("Ctrl+F", [this] {
        m_wanted->setFocus();
        m_wanted->selectAll();
    });
    addKey("F3", [this] { search(false); });
    addKey("Shift+F3", [this] { search(true); });
    addKey("Alt+Left", [this] { m_page->backward(); });
    addKey("Alt+Right", [this] { m_page->forward(); });
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::showPlace);
    m_page->setFocus();
}

void HelpWindow::goTo(const QString& place)
{
    m_page->goTo(place);
}

void HelpWindow::makeContents()
{
    m_contents->setObjectName("helpContents");
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setHeaderHidden(true);
    for (const QString& page : helpPages()) {
        QTextDocument text;
        text.setMarkdown(helpText(page));
        QTreeWidgetItem* title = nullptr;
        for (const HelpHeading& heading : headingsOf(text)) {
            if (heading.level > kLevels)
                continue;
            auto* row = title ? new QTreeWidgetItem(title) : new QTreeWidgetItem(m_contents);
            row->setText(0, heading.text);
            row->setData(0, kPlace, title ? page + '#' + heading.anchor : page);
            title = title ? title : row;
        }
    }
    m_contents->expandAll();
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
        const QString place = row ? row->data(0, kPlace).toString() : QString();
        if (!place.isEmpty() && place != m_page->place())
            goTo(place);
    });
}

QLayout* HelpWindow::makeBar()
{
    QToolButton* back = arrow(Qt::LeftArrow, tr("Back"));
    back->setObjectName("helpBack");
    QToolButton* forward = arrow(Qt::RightArrow, tr("Forward"));
    forward->setObjectName("helpForward");
    connect(back, &QToolButton::clicked, m_page, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, m_page, &QTextBrowser::forward);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    m_wanted->setObjectName("helpSearch");
    m_wanted->setPlaceholderText(tr("Search this page"));
    m_wanted->setAccessibleName(tr("Search this page"));
    m_wanted->setClearButtonEnabled(true);
    m_wanted->setFixedWidth(280);
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] { search(false); });
    connect(m_wanted, &QLineEdit::textChanged, m_outcome, &QLabel::clear);
    m_outcome->setObjectName("helpOutcome");
    auto* bar = new QHBoxLayout;
    bar->addWidget(back);
    bar->addWidget(forward);
    bar->addStretch(1);
    bar->addWidget(m_outcome);
    bar->addWidget(m_wanted);
    return bar;
}

void HelpWindow::addKey(const char* keys, std::function<void()> act)
{
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, this, [act = std::move(act)] { act(); });
}

void HelpWindow::showPlace()
{
    m_outcome->clear();
    for (QTreeWidgetItemIterator row(m_contents); *row; ++row) {
        if ((*row)->data(0, kPlace) == m_page->place())
            return m_contents->setCurrentItem(*row);
    }
}

void HelpWindow::search(bool backwards)
{
    const bool found = m_page->search(m_wanted->text(), backwards);
    m_outcome->setText(found || m_wanted->text().isEmpty() ? QString()
                                                           : tr("Not found on this page"));
}

void showHelp(const QString& place, QWidget* parent)
{
    QWidget* const inFront = QApplication::activeModalWidget();
    QWidget* const owner = inFront ? inFront : parent;
    auto* window = owner->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!window || !window->isVisible()) // one that was closed is on its way out
        window = new HelpWindow(owner);
    window->goTo(place);
    window->show();
    window->raise();
    window->activateWindow();
}
