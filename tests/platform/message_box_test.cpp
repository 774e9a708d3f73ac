#include <platform/message_box.h>

#include <gmock/gmock.h>

#include <string>

namespace {

using testing::Return;
using namespace std::string_literals;

class HandlerMock : public MessageBoxHandler
{
  public:
    MOCK_METHOD(int, shown, (HWND, std::wstring, std::wstring, unsigned int));
    int show(const Message& message) override
    {
        return shown(message.owner, message.text, message.caption, message.style);
    }
};

/// Stands for a window; nobody looks inside.
HWND someWindow()
{
    static int place = 0;
    return reinterpret_cast<HWND>(&place);
}

class MessageBoxes : public testing::Test
{
  protected:
    MessageBoxes() { setMessageBoxHandler(&m_handler); }
    ~MessageBoxes() override
    {
        setMessageBoxHandler(nullptr);
        setMainWindow(nullptr);
    }

    testing::StrictMock<HandlerMock> m_handler;
};

TEST_F(MessageBoxes, GoToTheInstalledHandler)
{
    EXPECT_CALL(m_handler, shown(someWindow(), L"text"s, L"caption"s, 48u)).WillOnce(Return(1));
    EXPECT_EQ(MessageBoxW(someWindow(), L"text", L"caption", MB_ICONWARNING), kMessageBoxOk);
}

TEST_F(MessageBoxes, ComeUpUnderTheProductsNameBeforeTheMainWindow)
{
    setMainWindow(someWindow());
    EXPECT_EQ(kdsw_kdadMainWnd(), someWindow());
    EXPECT_CALL(m_handler, shown(someWindow(), L"lost"s, L"KwQselect"s, 16u)).WillOnce(Return(0));
    EXPECT_EQ(AfxMessageBox(L"lost", MB_ICONSTOP, 0), 0);
}

TEST_F(MessageBoxes, TakeNullForAnEmptyText)
{
    EXPECT_CALL(m_handler, shown(nullptr, L""s, L""s, 0u)).WillOnce(Return(1));
    MessageBoxW(nullptr, nullptr, nullptr, MB_OK);
}

TEST_F(MessageBoxes, TellWhichHandlerWasThereBefore)
{
    HandlerMock other;
    EXPECT_EQ(setMessageBoxHandler(&other), &m_handler);
    EXPECT_EQ(setMessageBoxHandler(&m_handler), &other);
}

TEST_F(MessageBoxes, GoToStandardErrorAtFirst)
{
    setMessageBoxHandler(nullptr);
    testing::internal::CaptureStderr();
    EXPECT_EQ(MessageBoxW(nullptr, L"Gr\u00f6\u00dfe?", L"Caption", MB_OK), kMessageBoxOk);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Caption: Gr\u00f6\u00dfe?\n");
}

TEST(ProductName, IsOurOwn)
{
    EXPECT_EQ(std::wstring(GetOemProductName()), L"KwQselect");
}

} // namespace
