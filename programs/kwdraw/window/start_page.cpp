#include <kwdraw/window/start_page.h>

#include <QCommandLinkButton>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <kwdraw/window/icons.h>

StartPage::StartPage(QWidget* parent) : QWidget(parent), m_files(new QVBoxLayout)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto* open = new QPushButton(iconOf(Icon::Open), tr("Open a Drawing..."));
    open->setObjectName("openHere");
    connect(open, &QPushButton::clicked, this, &StartPage::openWanted);
    auto* hint = new QLabel(tr("or drop one here"));
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addStretch(2);
    column->addWidget(open, 0, Qt::AlignHCenter);
    column->addWidget(hint, 0, Qt::AlignHCenter);
    column->addSpacing(16);
    column->addLayout(m_files);
    column->addStretch(3);
    auto* layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(column, 2);
    layout->addStretch(1);
}

void StartPage::setRecentFiles(const QStringList& files)
{
    while (QLayoutItem* item = m_files->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString& path : files) {
        const QFileInfo file(path);
        if (!file.exists())
            continue;
        auto* button = new QCommandLinkButton(file.fileName(), file.absolutePath());
        button->setIcon({});
        connect(button, &QPushButton::clicked, this, [this, path] { emit fileWanted(path); });
        m_files->addWidget(button);
    }
}
