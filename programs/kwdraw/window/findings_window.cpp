#include <kwdraw/window/findings_window.h>

#include <exchange/drawing_reader.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <kwdraw/document/sentences.h>

namespace {

QTreeWidgetItem* rowOf(const ReadFinding& finding)
{
    const QString handle =
        finding.handle ? QString::number(finding.handle, 16).toUpper() : QString();
    auto* row = new QTreeWidgetItem({QString::number(finding.line), handle, sentenceOf(finding)});
    row->setTextAlignment(0, Qt::AlignRight);
    row->setToolTip(2, row->text(2));
    return row;
}

} // namespace

QString findingsSentence(const ReadReport& report)
{
    const auto count = static_cast<int>(report.totalFindings);
    if (count == 0)
        return {};
    const QString faults = count == 1 ? QDialog::tr("One fault was found in the file.")
                                      : QDialog::tr("%1 faults were found in the file.").arg(count);
    return report.complete ? faults : faults + ' ' + QDialog::tr("Not all of it could be read.");
}

void showFindings(const QString& file, const ReadReport& report, QWidget* parent)
{
    auto* window = new QDialog(parent);
    window->setObjectName("findingsWindow");
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QDialog::tr("Faults in %1").arg(QFileInfo(file).fileName()));
    window->resize(720, 420);
    auto* list = new QTreeWidget;
    list->setObjectName("findings");
    list->setRootIsDecorated(false);
    list->setAlternatingRowColors(true);
    list->setHeaderLabels({report.binary ? QDialog::tr("Byte") : QDialog::tr("Line"),
                           QDialog::tr("Handle"), QDialog::tr("What was found")});
    for (const ReadFinding& finding : report.findings)
        list->addTopLevelItem(rowOf(finding));
    list->resizeColumnToContents(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::close);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(list);
    if (report.totalFindings > report.findings.size())
        layout->addWidget(new QLabel(QDialog::tr("The first %1 of %2 are listed.")
                                         .arg(report.findings.size())
                                         .arg(report.totalFindings)));
    layout->addWidget(buttons);
    window->show();
}
