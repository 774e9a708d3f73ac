#include <kwbrowse/help_window.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

void showHelp(QWidget* parent)
{
    QFile file(":/kwbrowse/quick_select.md");
    file.open(QIODevice::ReadOnly);
    QDialog window(parent);
    window.setWindowTitle(QObject::tr("Help"));
    window.resize(560, 520);
    auto* text = new QTextBrowser;
    text->setMarkdown(QString::fromUtf8(file.readAll()));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(text);
    layout->addWidget(buttons);
    window.exec();
}
