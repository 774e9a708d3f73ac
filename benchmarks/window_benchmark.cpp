// Measures what a person waits for in the window over a large drawing: opening it, moving about,
// and from OK in the dialog to the marks on the screen. window_benchmark [DRAWING]
#include <QApplication>
#include <QElapsedTimer>
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
    qint64 longest() const { return m_longest; }

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
    const double opened = milliseconds(timer);
    auto* view = window.findChild<DrawingView*>();
    view->renderedPicture();
    std::printf("%-44s %8.1f ms\n", "opened", opened);
    std::printf("%-44s %8.1f ms\n", "and painted for the first time", milliseconds(timer));
    std::printf("%-44s %8lld ms\n", "longest stop of the window meanwhile",
                static_cast<long long>(stalls.longest()));
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
    if (open(window, argc > 1 ? QString::fromLocal8Bit(argv[1]) : KW_DRAWINGS "/100000.dxf"))
        return 1;
    auto* view = window.findChild<DrawingView*>();
    move(*view);
    select(module, *view);
    return 0;
}
