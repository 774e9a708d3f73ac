// Measures what a person waits for in the window over a large drawing: opening it, moving about,
// and from OK in the dialog to the marks on the screen. window_benchmark [DRAWING]
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <common/module.h>
#include <kwdraw/view/drawing_view.h>
#include <kwdraw/window/main_window.h>

namespace {

constexpr int kLongest = 120'000; // milliseconds
constexpr int kRounds = 20;

/// The longest time for which the event loop did not come round.
class Stalls
{
  public:
    Stalls()
    {
        QObject::connect(&m_timer, &QTimer::timeout,
                         [this] { m_longest = std::max(m_longest, m_since.restart()); });
        m_since.start();
        m_timer.start(0);
    }
    qint64 longest() const { return std::max(m_longest, m_since.elapsed()); }
    void tell(const char* meanwhile) const
    {
        std::printf("%-44s %8lld ms\n", meanwhile, static_cast<long long>(longest()));
    }

  private:
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

quick_select::Request linesAbove(const wchar_t* length)
{
    constexpr int kReal = 5001;
    quick_select::Request request{};
    request.typeName = L"Line";
    request.className = L"AcDbLine";
    request.propertyKey = L"Geometry:Length";
    request.kind = kReal;
    request.operatorText = L">";
    request.valueText = length;
    return request;
}

/// Lets the window come to rest, as the panels read on in slices and the view paints beside.
void settle()
{
    constexpr int kRest = 1000;
    QTest::qWait(kRest);
}

int open(MainWindow& window, const QString& drawing)
{
    QElapsedTimer timer;
    const Stalls stalls;
    timer.start();
    window.openFile(drawing);
    if (!QTest::qWaitFor([&] { return window.document().isOpen(); }, kLongest)) {
        std::fprintf(stderr, "window_benchmark: %s can't be opened\n", qPrintable(drawing));
        return 1;
    }
    std::printf("%-44s %8.1f ms\n", "opened", milliseconds(timer));
    settle();
    stalls.tell("longest stop of the window meanwhile");
    return 0;
}

/// From the moment at which the dialog has its filter.
void select(const Module& module, DrawingView& view)
{
    double longest = 0.0;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        quick_select::Result result{};
        module.run(linesAbove(round % 2 ? L"0" : L"10"), nullptr, result);
        QCoreApplication::processEvents();
        view.renderedPicture();
        longest = std::max(longest, milliseconds(timer));
    }
    std::printf("%-44s %8.1f ms\n", "from OK to the marks, at most", longest);
}

template <class Condition>
void waitFor(Condition condition)
{
    if (!QTest::qWaitFor(condition, kLongest))
        std::fprintf(stderr, "window_benchmark: waited in vain\n");
}

void selectAll(MainWindow& window)
{
    const Stalls stalls;
    window.carryOut("SELECTALL");
    settle();
    stalls.tell("longest stop, everything selected");
    const Stalls again;
    window.carryOut("DESELECT");
    settle();
    again.tell("longest stop, nothing selected again");
}

/// Sets a filter up in the dialog and waits until its matches are shown.
void preview(MainWindow& window)
{
    QTimer::singleShot(0, &window, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        const auto* line = window.findChild<QLabel*>("preview");
        const auto isCounted = [&] { return line->isVisible() && !line->text().contains("..."); };
        QElapsedTimer timer;
        timer.start();
        const Stalls stalls;
        waitFor(isCounted);
        dialog->findChild<QComboBox*>("IDC_QSELECT_OBJECT_TYPE_COMBO")->setCurrentText("Line");
        dialog->findChild<QComboBox*>("IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("Select All");
        constexpr int kSettling = 100;
        QTest::qWait(kSettling);
        waitFor(isCounted);
        std::printf("%-44s %8.1f ms  %s\n", "two filters counted", milliseconds(timer),
                    qPrintable(line->text()));
        settle();
        stalls.tell("longest stop of the window meanwhile");
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    window.carryOut("QSELECT");
}

/// The drawing of before goes meanwhile.
void openAgain(MainWindow& window, DrawingView& view, const QString& drawing)
{
    const Scene* const before = view.scene().get();
    const Stalls stalls;
    window.openFile(drawing);
    waitFor([&] { return view.scene().get() != before; });
    settle();
    stalls.tell("longest stop, the drawing opened again");
}

void move(DrawingView& view)
{
    double longest = 0.0;
    for (int round = 0; round < kRounds; ++round) {
        ViewPlace place = view.place();
        place.center += QPointF(3.0, 2.0) * place.unitsPerPixel;
        if (round % 5 == 4)
            place.unitsPerPixel *= round % 2 ? 0.8 : 1.25;
        QElapsedTimer timer;
        timer.start();
        view.setPlace(place);
        view.repaint();
        longest = std::max(longest, milliseconds(timer));
        QCoreApplication::processEvents();
    }
    std::printf("%-44s %8.1f ms\n", "a frame of panning and zooming, at most", longest);
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings; // nobody's own settings are read
    setenv("XDG_CONFIG_HOME", qPrintable(settings.path()), 1);
    QApplication application(argc, argv);
    Module module;
    if (!module.load(modulePath())) {
        std::fprintf(stderr, "window_benchmark: %s\n", module.error().c_str());
        return 1;
    }
    MainWindow window(module);
    window.resize(1400, 900);
    window.show();
    const QString drawing =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString(KW_DRAWINGS "/100000.dxf");
    if (open(window, drawing))
        return 1;
    auto* view = window.findChild<DrawingView*>();
    move(*view);
    select(module, *view);
    settle();
    selectAll(window);
    preview(window);
    openAgain(window, *view, drawing);
    return 0;
}
