#include <kwdraw/window/help_browser.h>

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <kwdraw/window/help_pages.h>

namespace {

constexpr char kBase[] = "help:/";
constexpr int kMargin = 16; // pixels

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(kMargin);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::goToHeading);
}

void HelpBrowser::goTo(const QString& place)
{
    setSource(QUrl(kBase + place), QTextDocument::MarkdownResource);
}

bool HelpBrowser::search(const QString& text, bool backwards)
{
    const QTextDocument::FindFlags direction =
        backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (text.isEmpty() || find(text, direction))
        return !text.isEmpty();
    const QTextCursor before = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(text, direction))
        return true;
    setTextCursor(before);
    return false;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (type == QTextDocument::MarkdownResource)
        return helpText(name.fileName());
    if (type == QTextDocument::ImageResource)
        return helpPicture(name.fileName(), palette().color(QPalette::Base).lightness() < 128);
    return {};
}

void HelpBrowser::goToHeading(const QUrl& source)
{
    m_place = source.toString().mid(static_cast<int>(qstrlen(kBase)));
    if (source.fragment().isEmpty())
        return;
    for (const HelpHeading& heading : headingsOf(*document())) {
        if (heading.anchor != source.fragment())
            continue;
        QTextCursor cursor(document()->findBlock(heading.position));
        moveCursor(QTextCursor::End); // so that the heading comes to the top
        setTextCursor(cursor);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - kMargin);
        return;
    }
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || source().isEmpty())
        return;
    const int place = verticalScrollBar()->value();
    reload(); // with the pictures for these colours
    verticalScrollBar()->setValue(place);
}
