// One start of the program: kwdraw_session DRAWING ok|cancel [CONTROL=TEXT...]
//
// Prints what the dialog shows when it comes up, sets its controls, ends it and quits.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <cstdio>

#include <common/module.h>
#include <kwdraw/window/main_window.h>

namespace {

constexpr int kLongest = 20'000; // milliseconds that opening may take

void print(QWidget& dialog)
{
    const auto textOf = [&](const char* combo) {
        return dialog.findChild<QComboBox*>(combo)->currentText();
    };
    const auto* list = dialog.findChild<QListWidget*>("IDC_QSELECT_PROPERTIES_LIST");
    const bool excludes =
        dialog.findChild<QRadioButton*>("IDC_QSELECT_EXCLUDE_BUTTON")->isChecked();
    std::printf("%s|%s|%s|%s\n", qPrintable(textOf("IDC_QSELECT_OBJECT_TYPE_COMBO")),
                qPrintable(list->currentItem() ? list->currentItem()->text() : QString()),
                qPrintable(textOf("IDC_QSELECT_OPERATOR_COMBO")), excludes ? "exclude" : "include");
}

void set(QWidget& dialog, const QString& control, const QString& text)
{
    QWidget* widget = dialog.findChild<QWidget*>(control);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->setCurrentText(text);
    } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
        list->setCurrentItem(list->findItems(text, Qt::MatchExactly).value(0));
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        QTest::keyClicks(edit, text);
    } else {
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(9, widget->height() / 2));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Module module;
    if (arguments.size() < 3 || !module.load(modulePath()))
        return 2;
    MainWindow window(module);
    window.show();
    window.openFile(arguments[1]);
    if (!QTest::qWaitFor([&] { return window.document().isOpen(); }, kLongest))
        return 2;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        print(*dialog);
        for (const QString& argument : arguments.mid(3))
            set(*dialog, argument.section('=', 0, 0), argument.section('=', 1));
        const char* const end = arguments[2] == "ok" ? "IDOK" : "IDCANCEL";
        set(*dialog, end, {});
    });
    window.carryOut("QSELECT");
    return 0;
}
