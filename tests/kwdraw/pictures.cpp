// Draws the pictures of the documentation, in the language of the user:
// program_pictures DRAWING FOLDER SUFFIX light|dark|contrast NAME...
#include <ui/message_box_windows.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <optional>
#include <utility>

#include <common/module.h>
#include <kwdraw/document/user_language.h>
#include <kwdraw/window/main_window.h>
#include <kwdraw/window/theme.h>

namespace {

constexpr int kSettle = 80;      // milliseconds
constexpr int kLongest = 20'000; // that opening may take

/// What is chosen in the dialog, by its names in one language.
struct Words
{
    const char* circle = "Circle";
    const char* polyline = "Polyline";
    const char* radius = "Radius";
    const char* length = "Length";
    const char* color = "Color";
    const char* linetype = "Linetype";
};

Words words()
{
    if (userLanguage() == "de")
        return {"Kreis", "Polylinie", "Radius", "Länge", "Farbe", "Linientyp"};
    return {};
}

constexpr int kGreater = 2; ///< in the list of operators

/// The windows on the screen as they lie over each other, each in a thin frame, on an even ground.
QImage pictureOf(const QWidgetList& windows)
{
    QRect area;
    for (const QWidget* window : windows)
        area |= QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
    const qreal scale = windows.first()->devicePixelRatioF();
    QImage picture(area.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&picture);
    for (QWidget* window : windows) {
        const QRect place(window->mapToGlobal(QPoint(0, 0)) - area.topLeft(), window->size());
        painter.drawPixmap(place, window->grab());
        painter.setPen(window->palette().color(QPalette::Mid));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
    return picture;
}

class Pictures
{
  public:
    Pictures(const char* folder, const char* suffix, QStringList wanted)
        : m_folder(folder), m_suffix(suffix), m_wanted(std::move(wanted))
    {
    }

    /// Takes one of the pictures that are wanted; others are passed over.
    void take(const QString& name, const QWidgetList& windows)
    {
        if (!m_wanted.contains(name))
            return;
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
    QStringList m_wanted;
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

/// The filter "TYPE: PROPERTY > VALUE", as a person puts it together.
void chooseFilter(QWidget& dialog, const char* type, const char* property, const char* value)
{
    combo(dialog, "IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText(type);
    chooseProperty(dialog, property);
    combo(dialog, "IDC_QSELECT_OPERATOR_COMBO")->setCurrentIndex(kGreater);
    auto* edit = dialog.findChild<QLineEdit*>("IDC_QSELECT_VALUE_EDIT");
    edit->setText(value);
    edit->setFocus();
}

/// The dialog with what it would select in the window behind it.
void takePreview(Pictures& pictures, MainWindow& window, QWidget& dialog)
{
    chooseFilter(dialog, words().polyline, words().length, "1000");
    QTest::qWait(2 * kSettle); // for the count of these
    const auto* line = window.findChild<QLabel*>("preview");
    const auto isCounted = [&] { return line->isVisible() && !line->text().contains("..."); };
    if (!QTest::qWaitFor(isCounted, kLongest))
        std::fprintf(stderr, "program_pictures: no preview came up\n");
    // A small window, with the dialog over the panel that shows nothing.
    const QRect before = window.geometry();
    const QPoint place = dialog.pos();
    auto* layers = window.findChild<QDockWidget*>("layersDock");
    layers->hide();
    window.resize(1000, 700);
    QTest::qWait(kSettle);
    dialog.move(window.findChild<QDockWidget*>("propertiesDock")->mapToGlobal(QPoint(0, 0)));
    window.findChild<DrawingView*>()->renderedPicture();
    pictures.take("preview", {&window, &dialog});
    layers->show();
    window.setGeometry(before);
    dialog.move(place);
}

void takeDialog(Pictures& pictures, MainWindow& window, QWidget& dialog)
{
    takePreview(pictures, window, dialog);
    chooseFilter(dialog, words().circle, words().radius, "5");
    pictures.take("quick-select", {&dialog});
    for (const auto& [property, name] :
         {std::pair{words().color, "colors"}, {words().linetype, "linetypes"}}) {
        chooseProperty(dialog, property);
        takeWithList(pictures, QString("quick-select-") + name, dialog, valueCombo(dialog));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    const auto theme = argc > 5 ? themeNamed(argv[4]) : std::nullopt;
    if (!theme) {
        std::fprintf(stderr, "usage: program_pictures DRAWING FOLDER SUFFIX light|dark|contrast "
                             "NAME...\n");
        return 2;
    }
    installMessageBoxWindows();
    const Translation translation;
    Module module;
    if (!module.load(modulePath())) {
        std::fprintf(stderr, "program_pictures: %s\n", module.error().c_str());
        return 2;
    }
    storeTheme(*theme);
    MainWindow window(module);
    window.show();
    window.openFile(argv[1]);
    if (!QTest::qWaitFor([&] { return window.document().isOpen(); }, kLongest))
        return 2;
    Pictures pictures(argv[2], argv[3], QApplication::arguments().mid(5));
    QTimer::singleShot(kSettle, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        takeDialog(pictures, window, *dialog);
        if (*theme == Theme::HighContrast) // large objects, whose marks stand apart
            chooseFilter(*dialog, words().polyline, words().length, "1000");
        else
            chooseFilter(*dialog, words().circle, words().radius, "5");
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    window.carryOut("QSELECT");
    window.findChild<DrawingView*>()->renderedPicture();
    pictures.take("kwdraw", {&window});
    return pictures.failed() ? 1 : 0;
}
