#include <kwdraw/window/help_window.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QTextBrowser* page(const char* file)
{
    QFile text(file);
    text.open(QIODevice::ReadOnly);
    auto* browser = new QTextBrowser;
    browser->setMarkdown(QString::fromUtf8(text.readAll()));
    browser->setOpenLinks(false);
    browser->setFrameShape(QFrame::NoFrame);
    return browser;
}

} // namespace

void showHelp(HelpPage which, QWidget* parent)
{
    QWidget* const inFront = QApplication::activeModalWidget();
    auto* window = new QDialog(inFront ? inFront : parent);
    window->setObjectName("helpWindow");
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QDialog::tr("Help"));
    window->resize(620, 620);
    auto* pages = new QTabWidget;
    pages->setDocumentMode(true);
    pages->addTab(page(":/kwdraw/kwdraw.md"), QDialog::tr("kwdraw"));
    pages->addTab(page(":/kwdraw/quick_select.md"), QDialog::tr("Quick Select"));
    pages->setCurrentIndex(static_cast<int>(which));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::close);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(pages);
    layout->addWidget(buttons);
    window->show();
}
