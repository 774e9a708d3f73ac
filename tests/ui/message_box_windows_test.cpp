#include "window_test.h"

#include <platform/message_box.h>
#include <ui/message_box_windows.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <string>

namespace {

class MessageBoxWindows : public WindowTest
{
  protected:
    MessageBoxWindows() { installMessageBoxWindows(); }
    ~MessageBoxWindows() override
    {
        setMainWindow(nullptr);
        setMessageBoxHandler(nullptr);
    }

    /// Shows a message, lets `look` see the window and closes it as a person does, by its button.
    int showAndAccept(const std::function<int()>& show,
                      const std::function<void(QMessageBox&)>& look)
    {
        bool seen = false;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            seen = true;
            EXPECT_TRUE(box->isVisible());
            look(*box);
            ASSERT_TRUE(box->button(QMessageBox::Ok));
            box->button(QMessageBox::Ok)->click();
        });
        const int answer = show();
        EXPECT_TRUE(seen);
        return answer;
    }
};

TEST_F(MessageBoxWindows, ShowTextAndCaptionAndAreAcknowledged)
{
    const int answer = showAndAccept(
        [] { return MessageBoxW(nullptr, L"Gr\u00f6\u00dfe <b>3</b>", L"Caption", MB_OK); },
        [](QMessageBox& box) {
            EXPECT_EQ(box.text().toStdWString(), L"Gr\u00f6\u00dfe <b>3</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), "Caption");
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        });
    EXPECT_EQ(answer, kMessageBoxOk);
}

TEST_F(MessageBoxWindows, StandBeforeTheMainWindow)
{
    QWidget window;
    setMainWindow(&window);
    showAndAccept([] { return AfxMessageBox(L"lost", MB_ICONSTOP, 0); },
                  [&](QMessageBox& box) {
                      EXPECT_EQ(box.parentWidget(), &window);
                      EXPECT_EQ(box.windowTitle(), "KwQselect");
                      EXPECT_EQ(box.icon(), QMessageBox::Critical);
                  });
}

TEST_F(MessageBoxWindows, ShowTheIconOfTheStyle)
{
    const std::pair<unsigned int, QMessageBox::Icon> rows[] = {
        {MB_ICONQUESTION, QMessageBox::Question},
        {MB_ICONWARNING, QMessageBox::Warning},
        {MB_ICONINFORMATION, QMessageBox::Information},
    };
    for (const auto& [style, icon] : rows)
        showAndAccept([style = style] { return MessageBoxW(nullptr, L"text", L"caption", style); },
                      [icon = icon](QMessageBox& box) { EXPECT_EQ(box.icon(), icon); });
}

TEST_F(MessageBoxWindows, LeaveMessagesWhereTheyWentWithoutAnApplication)
{
    installMessageBoxWindows(); // a second time changes nothing
    m_application.reset();
    testing::internal::CaptureStderr();
    EXPECT_EQ(MessageBoxW(nullptr, L"text", L"caption", MB_OK), kMessageBoxOk);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "caption: text\n");
}

} // namespace
