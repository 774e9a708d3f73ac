#include <platform/message_box.h>

#include <QString>

#include <cstdio>

namespace {

/// For programs without windows.
class StandardErrorHandler : public MessageBoxHandler
{
  public:
    int show(const Message& message) override
    {
        const QByteArray line = (QString::fromWCharArray(message.caption) + ": " +
                                 QString::fromWCharArray(message.text) + "\n")
                                    .toUtf8();
        const auto size = static_cast<std::size_t>(line.size());
        return std::fwrite(line.constData(), 1, size, stderr) == size ? kMessageBoxOk : 0;
    }
};

StandardErrorHandler standardErrorHandler;
MessageBoxHandler* currentHandler = &standardErrorHandler;
HWND mainWindow = nullptr;

} // namespace

MessageBoxHandler::~MessageBoxHandler() = default;

MessageBoxHandler* setMessageBoxHandler(MessageBoxHandler* handler)
{
    MessageBoxHandler* const previous = currentHandler;
    currentHandler = handler ? handler : &standardErrorHandler;
    return previous;
}

int AfxMessageBox(const wchar_t* text, unsigned int type, unsigned int)
{
    return MessageBoxW(kdsw_kdadMainWnd(), text, GetOemProductName(), type);
}

int MessageBoxW(HWND window, const wchar_t* text, const wchar_t* caption, unsigned int style)
{
    return currentHandler->show({window, text ? text : L"", caption ? caption : L"", style});
}

HWND kdsw_kdadMainWnd()
{
    return mainWindow;
}

void setMainWindow(HWND window)
{
    mainWindow = window;
}

const wchar_t* GetOemProductName()
{
    return L"KwQselect";
}
