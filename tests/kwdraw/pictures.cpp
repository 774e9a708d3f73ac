// Draws the pictures of the documentation: program_pictures DRAWING FOLDER SUFFIX dark|light
#include <ui/color_dialog.h>
#include <ui/message_box_windows.h>
#include <ui/mru_combos.h>
#include <ui/widgets.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

#include <common/module.h>
#include <kwdraw/window/main_window.h>
#include <kwdraw/window/theme.h>
#include <platform/resources.h>

namespace {

constexpr int kSettle = 80;      // milliseconds
constexpr int kLongest = 20'000; // that opening may take

/// The windows on the screen as they lie over each other, without what is behind them.
QImage pictureOf(const QWidgetList& windows)
{
    QRect area;
    for (const QWidget* window : windows)
        area |= QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
    const qreal scale = windows.first()->devicePixelRatioF();
    QImage picture(area.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (QWidget* window : windows)
        painter.drawPixmap(window->mapToGlobal(QPoint(0, 0)) - area.topLeft(), window->grab());
    return picture;
}

class Pictures
{
  public:
    Pictures(const char* folder, const char* suffix) : m_folder(folder), m_suffix(suffix) {}

    void take(const QString& name, const QWidgetList& windows)
    {
        QTest::qWait(kSettle);
        const QString file = m_folder + '/' + name + '-' + m_suffix + ".png";
        if (!pictureOf(windows).save(file)) {
            std::fprintf(stderr, "program_pictures: %s can't be written\n", qPrintable(file));
            m_failed = true;
        }
    }
    bool failed() const { return m_failed; }

  private:
    QString m_folder;
    QString m_suffix;
    bool m_failed = false;
};

QComboBox* combo(QWidget& dialog, const char* name)
{
    return dialog.findChild<QComboBox*>(name);
}

void chooseProperty(QWidget& dialog, const char* name)
{
    auto* list = dialog.findChild<QListWidget*>("IDC_QSELECT_PROPERTIES_LIST");
    const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
    if (!found.isEmpty())
        list->setCurrentItem(found.first());
}

/// The value combo that shows.
QComboBox* valueCombo(QWidget& dialog)
{
    const QWidget* edit = dialog.findChild<QWidget*>("IDC_QSELECT_VALUE_EDIT");
    for (QComboBox* each : dialog.findChildren<QComboBox*>()) {
        if (each->isVisible() && each->geometry().topLeft() == edit->geometry().topLeft())
            return each;
    }
    return nullptr;
}

void takeWithList(Pictures& pictures, const QString& name, QWidget& dialog, QComboBox* opened)
{
    opened->showPopup();
    QTest::qWait(kSettle);
    pictures.take(name, {&dialog, opened->view()->window()});
    opened->hidePopup();
}

/// The dialog with what it would select in the window behind it.
void takePreview(Pictures& pictures, MainWindow& window, QWidget& dialog)
{
    combo(dialog, "IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText("Polyline");
    chooseProperty(dialog, "Length");
    combo(dialog, "IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("> Greater Than");
    dialog.findChild<QLineEdit*>("IDC_QSELECT_VALUE_EDIT")->setText("1000");
    QTest::qWait(2 * kSettle); // for the count of these
    const auto* line = window.findChild<QLabel*>("preview");
    const auto isCounted = [&] { return line->isVisible() && !line->text().contains("..."); };
    if (!QTest::qWaitFor(isCounted, kLongest))
        std::fprintf(stderr, "program_pictures: no preview came up\n");
    window.findChild<DrawingView*>()->renderedPicture();
    dialog.move(window.mapToGlobal(QPoint(window.width(), 0)));
    pictures.take("preview", {&window, &dialog});
    combo(dialog, "IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("= Equals");
    combo(dialog, "IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText("Circle");
}

void takeDialog(Pictures& pictures, MainWindow& window, QWidget& dialog)
{
    combo(dialog, "IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText("Circle");
    chooseProperty(dialog, "Radius");
    auto* edit = dialog.findChild<QLineEdit*>("IDC_QSELECT_VALUE_EDIT");
    edit->setText("0.25");
    edit->setFocus();
    pictures.take("quick-select", {&dialog});
    takePreview(pictures, window, dialog);
    for (const auto& [property, name] : {std::pair{"Color", "colors"},
                                         {"Layer", "layers"},
                                         {"Linetype", "linetypes"},
                                         {"Lineweight", "lineweights"}}) {
        chooseProperty(dialog, property);
        takeWithList(pictures, QString("quick-select-") + name, dialog, valueCombo(dialog));
    }
}

/// The arrowheads in a window of their own.
void takeArrowheads(Pictures& pictures)
{
    QWidget window;
    window.resize(270, 40);
    auto* widget = new KdUiComboBox(&window);
    widget->setGeometry(10, 8, 250, 24);
    widget->setMaxVisibleItems(20);
    widget->setStyleSheet("QComboBox{combobox-popup:0;}");
    CKdUiArrowHeadComboBox control;
    control.setWidget(widget);
    control.Create(CBS_DROPDOWNLIST, {}, nullptr, 0);
    control.SetCurSel(3);
    window.show();
    takeWithList(pictures, "arrowheads", window, widget);
}

void takeColorDialog(Pictures& pictures)
{
    KdCmColor color;
    color.setColorIndex(30);
    KdUiColorDialog dialog(color);
    dialog.show();
    pictures.take("color-dialog", {&dialog});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "usage: program_pictures DRAWING FOLDER SUFFIX dark|light\n");
        return 2;
    }
    installMessageBoxWindows();
    Module module;
    if (!module.load(modulePath())) {
        std::fprintf(stderr, "program_pictures: %s\n", module.error().c_str());
        return 2;
    }
    storeTheme(*themeNamed(argv[4]));
    MainWindow window(module);
    window.show();
    window.openFile(argv[1]);
    if (!QTest::qWaitFor([&] { return window.document().isOpen(); }, kLongest))
        return 2;
    Pictures pictures(argv[2], argv[3]);
    SetCurrentResourceName(L"KwQselectUtilRes.dll");
    takeArrowheads(pictures);
    takeColorDialog(pictures);
    RestorePreviousResource();
    QTimer::singleShot(kSettle, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        takeDialog(pictures, window, *dialog);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    window.carryOut("QSELECT");
    window.findChild<DrawingView*>()->renderedPicture();
    pictures.take("kwdraw", {&window});
    return pictures.failed() ? 1 : 0;
}
