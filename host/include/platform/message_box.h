/// Messages that the user has to acknowledge.
#pragma once

#include <runtime/export.h>

class QWidget;

/// A window on the screen; null where there is none.
using HWND = QWidget*;

/// The icon of a message box. A box has one button, OK; no other style bit counts.
constexpr unsigned int MB_OK = 0;
constexpr unsigned int MB_ICONSTOP = 16;
constexpr unsigned int MB_ICONQUESTION = 32;
constexpr unsigned int MB_ICONWARNING = 48;
constexpr unsigned int MB_ICONINFORMATION = 64;
/// The bits of a style that choose the icon.
constexpr unsigned int MB_ICONMASK = 0xF0;

/// The answer of a box that was acknowledged; 0 if it could not be shown.
constexpr int kMessageBoxOk = 1;

/// One message. The texts are never null and valid during the call.
struct Message
{
    HWND owner;
    const wchar_t* text;
    const wchar_t* caption;
    unsigned int style;
};

/// Shows messages to the user.
class KW_EXPORT MessageBoxHandler
{
  public:
    virtual ~MessageBoxHandler();
    /// Shows the message and waits until it is acknowledged; returns `kMessageBoxOk` or 0.
    virtual int show(const Message& message) = 0;
};

/// Installs what shows all messages from now on, and returns what did so far. Not owned; it must
/// stay until another is installed. Null brings back the first handler, which writes "caption:
/// text" to standard error and waits for nobody.
KW_EXPORT MessageBoxHandler* setMessageBoxHandler(MessageBoxHandler* handler);

/// Shows a message under the product's name, before the main window. Null counts as an empty text;
/// there is no help to show for `helpId`.
KW_EXPORT int AfxMessageBox(const wchar_t* text, unsigned int type, unsigned int helpId);

/// Shows a message before a window. A null text or caption counts as empty.
KW_EXPORT int MessageBoxW(HWND window, const wchar_t* text, const wchar_t* caption,
                          unsigned int style);

/// The main window of the program, or null if it has none.
KW_EXPORT HWND kdsw_kdadMainWnd();
/// Tells which window that is; a program sets it back to null before the window goes.
KW_EXPORT void setMainWindow(HWND window);

/// The name of the product, as captions show it.
KW_EXPORT const wchar_t* GetOemProductName();
