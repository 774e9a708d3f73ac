// Measures how long a person waits for the dialog: from the command to the first picture of it.
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdlib>
#include <iostream>

#include <common/module.h>
#include <editor/command_line.h>
#include <editor/system_variables.h>

#include "sample_drawing.h"

namespace {

constexpr long kEntities = 100'000;

/// Ends the dialog that comes up and tells when it was drawn for the first time.
class FirstPicture : public QObject
{
  public:
    FirstPicture() { qApp->installEventFilter(this); }

    void start()
    {
        m_seen = false;
        m_timer.start();
    }
    double seconds() const { return m_seconds; }

  private:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(object);
        if (dialog && event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            m_seconds = static_cast<double>(m_timer.nsecsElapsed()) * 1e-9;
            QTimer::singleShot(0, dialog, &QDialog::reject);
        }
        return false;
    }

    QElapsedTimer m_timer;
    bool m_seen = false;
    double m_seconds = 0.0;
};

void setListValues(short value)
{
    resbuf variable{};
    variable.restype = RTSHORT;
    variable.resval.rint = value;
    kdedSetVar(L"QSELECTLISTVALUES", &variable);
}

void measure(benchmark::State& state, const Module& module, short listValues)
{
    ReadOptions options;
    const WorkingDrawing drawing(state, kEntities, options);
    if (!drawing.isOpen())
        return;
    setListValues(listValues);
    FirstPicture picture;
    module.selectCmd(); // the first one reads the members of the entities that are shown
    for (auto _ : state) {
        picture.start();
        module.selectCmd();
        state.SetIterationTime(picture.seconds());
    }
    setListValues(0);
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings; // nobody's own settings are read
    setenv("XDG_CONFIG_HOME", qPrintable(settings.path()), 1);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "dialog_benchmark: " << module.error() << '\n';
        return 1;
    }
    kdutSetPrintSink([](std::wstring_view) {});
    for (const bool listsValues : {false, true}) {
        const short listValues = listsValues ? 1 : 0;
        const char* const name = !listsValues ? "dialog/100000" : "dialog with listed texts/100000";
        benchmark::RegisterBenchmark(
            name, [&, listValues](benchmark::State& state) { measure(state, module, listValues); })
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
