/// What the tests of the window share: small drawings, and a person who uses the window.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include <common/module.h>
#include <kwdraw/panels/layer_model.h>
#include <kwdraw/view/drawing_view.h>
#include <kwdraw/window/main_window.h>
#include <kwdraw/window/notice_bar.h>

namespace kwdraw_test {

/// A drawing with three circles of radius 10 in a row, a line above them, a frozen circle, and a
/// reference to the block "FRAME" of two lines. Handles are given, so that reloads can be followed.
/// The circles lie at x = 0, 100 and 200 (handles A1, A2, A3), the first two on layer "PIPES", the
/// last on "WALLS" with the line (handle A4, at y = 50). The reference (handle A5) is at (100,
/// 100).
struct Plan
{
    int circles = 3;      ///< so many of the three
    bool complete = true; ///< with its end
    double shift = 0.0;   ///< moves the first circle upwards

    QByteArray text() const;
};

void writeFile(const QString& path, const QByteArray& content);

class WindowTest : public testing::Test
{
  protected:
    WindowTest();
    ~WindowTest() override;

    /// Another window with the settings that the last one has stored.
    void startAgain();
    /// Writes a plan into the folder of the test and opens it.
    void openPlan(const Plan& plan = {});
    /// Opens a file and waits until that has come to an end.
    void open(const QString& file, const QString& layout = {});
    /// Waits until nothing is being read or built.
    void waitForWork();
    /// Gives the view the keys and waits until it can be picked in.
    void settle();

    QString planPath() const { return m_folder.filePath("plan.dxf"); }
    QString pathOf(const char* name) const { return m_folder.filePath(name); }
    Selection& selection() { return window->document().selection(); }
    KdDbObjectId entity(KdDbHandle handle);
    std::vector<KdDbHandle> selectedHandles();

    DrawingView& view() { return *window->findChild<DrawingView*>(); }
    NoticeBar& bar(const char* name) { return *window->findChild<NoticeBar*>(name); }
    void clickInBar(const char* name, const char* button);
    QString said();
    QString count() { return window->findChild<QLabel*>("count")->text(); }
    LayerModel& layers();
    QAction& action(Command command) { return *window->commands().action(command); }

    /// The pixel of the view where a place of the drawing is shown.
    QPoint pixelAt(double x, double y);
    void click(double x, double y, Qt::KeyboardModifiers keys = {});
    /// Draws a box with the left button held down.
    void drag(QPointF from, QPointF to);
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {});
    void typeCommand(const QString& line);

    /// Presses Ctrl+F and acts on the dialog that comes up.
    void quickSelect(const std::function<void(QWidget& dialog)>& act);
    static void chooseType(QWidget& dialog, const char* type);
    static void accept(QWidget& dialog);

    std::unique_ptr<MainWindow> window;

  private:
    QTemporaryDir m_folder;
};

/// Letters that open two entries of one menu of the window, with the menu's title in front.
QStringList doubledLetters(QWidget& window);

/// The folder of settings that a test runs with; made anew for each.
const QString& settingsFolder();

} // namespace kwdraw_test
