#include "support.h"

#include <QComboBox>
#include <QFile>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTimer>

#include <cstdlib>

#include <database/database.h>
#include <kwdraw/document/settings.h>
#include <kwdraw/panels/layer_panel.h>
#include <ui/theme.h>

namespace kwdraw_test {

namespace {

constexpr int kLongest = 20'000; // milliseconds that anything may take

/// The program around all tests, with the module as any program loads it.
class Program : public testing::Environment
{
  public:
    void SetUp() override
    {
        setenv("LC_ALL", "C.UTF-8", 1);
        application = std::make_unique<QApplication>(m_count, m_arguments);
        module = std::make_unique<Module>();
        ASSERT_TRUE(module->load(modulePath())) << module->error();
    }
    void TearDown() override
    {
        module.reset();
        application.reset();
    }

    std::unique_ptr<QApplication> application;
    std::unique_ptr<Module> module;

  private:
    int m_count = 1;
    char m_name[7] = "kwdraw";
    char* m_arguments[2] = {m_name, nullptr};
};

auto* const program = static_cast<Program*>(testing::AddGlobalTestEnvironment(new Program));

QString currentSettings;

QByteArray group(int code, const QByteArray& value)
{
    return QByteArray::number(code) + '\n' + value + '\n';
}

QByteArray group(int code, double value)
{
    return group(code, QByteArray::number(value));
}

QByteArray entityHead(const char* type, const char* handle, const char* layer)
{
    return group(0, type) + group(5, handle) + group(8, layer);
}

QByteArray circle(const char* handle, const char* layer, double x, double y)
{
    return entityHead("CIRCLE", handle, layer) + group(10, x) + group(20, y) + group(40, 10.0);
}

QByteArray line(const char* handle, const char* layer, double x1, double y1, double x2, double y2)
{
    return entityHead("LINE", handle, layer) + group(10, x1) + group(20, y1) + group(11, x2) +
           group(21, y2);
}

QByteArray layer(const char* name, int color, int flags = 0)
{
    return group(0, "LAYER") + group(2, name) + group(70, QByteArray::number(flags)) +
           group(62, QByteArray::number(color)) + group(6, "CONTINUOUS");
}

QByteArray section(const char* name, const QByteArray& content)
{
    return group(0, "SECTION") + group(2, name) + content + group(0, "ENDSEC");
}

} // namespace

QByteArray Plan::text() const
{
    const QByteArray tables = group(0, "TABLE") + group(2, "LAYER") + group(70, "4") +
                              layer("0", 7) + layer("PIPES", 1) + layer("WALLS", 3) +
                              layer("HIDDEN", 5, 1) + group(0, "ENDTAB");
    const QByteArray blocks = group(0, "BLOCK") + group(8, "0") + group(2, "FRAME") +
                              group(70, "0") + group(10, 0.0) + group(20, 0.0) +
                              line("B1", "0", 0, 0, 20, 0) + line("B2", "0", 0, 0, 0, 20) +
                              group(0, "ENDBLK");
    QByteArray entities;
    const char* const handles[] = {"A1", "A2", "A3"};
    for (int i = 0; i < circles; ++i)
        entities += circle(handles[i], i == 2 ? "WALLS" : "PIPES", 100.0 * i, i == 0 ? shift : 0.0);
    entities += line("A4", "WALLS", 0, 50, 200, 50);
    entities +=
        entityHead("INSERT", "A5", "0") + group(2, "FRAME") + group(10, 100.0) + group(20, 100.0);
    entities += circle("A6", "HIDDEN", 50, 80);
    return section("HEADER", group(9, "$ACADVER") + group(1, "AC1009")) +
           section("TABLES", tables) + section("BLOCKS", blocks) + section("ENTITIES", entities) +
           (complete ? group(0, "EOF") : QByteArray());
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

QStringList doubledLetters(QWidget& window)
{
    QStringList doubled;
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        QStringList letters;
        for (const QAction* action : menu->actions()) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            if (!letter.isEmpty() && letters.contains(letter))
                doubled << menu->title() + ": " + letter;
            letters << letter;
        }
    }
    return doubled;
}

const QString& settingsFolder()
{
    return currentSettings;
}

WindowTest::WindowTest()
{
    currentSettings = m_folder.filePath("settings");
    setenv("XDG_CONFIG_HOME", qPrintable(currentSettings), 1);
    setSwitch(L"COLORTHEME", 0);
    setSwitch(L"QSELECTLISTVALUES", 0);
    kduiApplyColorTheme();
    startAgain();
}

void WindowTest::startAgain()
{
    window.reset(); // there is one at a time
    window = std::make_unique<MainWindow>(*program->module);
    window->resize(1000, 700);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    QApplication::setActiveWindow(window.get());
}

WindowTest::~WindowTest()
{
    window.reset();
}

void WindowTest::waitForWork()
{
    auto* cancel = window->findChild<QWidget*>("cancelWork");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !cancel->isVisibleTo(window.get()); }, kLongest));
}

void WindowTest::open(const QString& file, const QString& layout)
{
    window->openFile(file, layout);
    waitForWork();
}

void WindowTest::openPlan(const Plan& plan)
{
    writeFile(planPath(), plan.text());
    open(planPath());
    ASSERT_TRUE(window->document().isOpen());
    ASSERT_EQ(window->document().drawing().path, planPath());
    settle();
}

KdDbObjectId WindowTest::entity(KdDbHandle handle)
{
    KdDbObjectId id;
    window->document().drawing().database->getObjectId(id, handle);
    return id;
}

std::vector<KdDbHandle> WindowTest::selectedHandles()
{
    std::vector<KdDbHandle> handles;
    for (const KdDbObjectId id : selection().ids())
        handles.push_back(id.handle());
    return handles;
}

void WindowTest::clickInBar(const char* name, const char* button)
{
    auto* found = bar(name).findChild<QAbstractButton*>(button);
    ASSERT_TRUE(found && found->isVisible()) << name << ' ' << button;
    QTest::mouseClick(found, Qt::LeftButton);
}

QString WindowTest::said()
{
    return window->findChild<QPlainTextEdit*>("said")->toPlainText();
}

LayerModel& WindowTest::layers()
{
    return window->findChild<LayerPanel*>()->model();
}

QPoint WindowTest::pixelAt(double x, double y)
{
    const ViewPlace place = view().place();
    const QPointF middle(view().width() / 2.0, view().height() / 2.0);
    const QPointF from = (QPointF(x, y) - place.center) / place.unitsPerPixel;
    return (middle + QPointF(from.x(), -from.y())).toPoint();
}

void WindowTest::click(double x, double y, Qt::KeyboardModifiers keys)
{
    QTest::mouseMove(&view(), pixelAt(x, y));
    QTest::mouseClick(&view(), Qt::LeftButton, keys, pixelAt(x, y));
}

void WindowTest::drag(QPointF from, QPointF to)
{
    const QPoint start = pixelAt(from.x(), from.y());
    const QPoint end = pixelAt(to.x(), to.y());
    QTest::mousePress(&view(), Qt::LeftButton, {}, start);
    for (const QPoint place : {(start + end) / 2, end}) {
        QMouseEvent move(QEvent::MouseMove, place, view().mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view(), &move);
    }
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, end);
}

void WindowTest::press(Qt::Key key, Qt::KeyboardModifiers keys)
{
    QTest::keyClick(&view(), key, keys);
}

void WindowTest::typeCommand(const QString& line)
{
    auto* input = window->findChild<QLineEdit*>("commandInput");
    input->setFocus();
    QTest::keyClicks(input, line);
    QTest::keyClick(input, Qt::Key_Return);
}

void WindowTest::quickSelect(const std::function<void(QWidget& dialog)>& act)
{
    bool cameUp = false;
    QTimer::singleShot(0, window.get(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog) << "no dialog came up";
        cameUp = true;
        act(*dialog);
        if (dialog->isVisible())
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(cameUp);
    settle();
}

void WindowTest::settle()
{
    QApplication::setActiveWindow(window.get()); // where no window manager does it
    view().setFocus();
    view().renderedPicture(); // by then the view knows where everything is
    QCoreApplication::processEvents();
}

void WindowTest::chooseType(QWidget& dialog, const char* type)
{
    dialog.findChild<QComboBox*>("IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText(type);
    dialog.findChild<QComboBox*>("IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("Select All");
}

void WindowTest::accept(QWidget& dialog)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>("IDOK"), Qt::LeftButton);
}

} // namespace kwdraw_test
