/// Windows as dialogs see them: plain objects in front of Qt widgets.
#pragma once

#include <runtime/export.h>

#include <QPointer>
#include <QWidget>

class QEvent;

/// A rectangle in screen coordinates; right and bottom edge lie just outside.
struct tagRECT
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct CPoint
{
    int x = 0;
    int y = 0;
};

/// An event on its way to a widget of a dialog.
struct tagMSG
{
    QWidget* hwnd;
    QEvent* event;
};

/// Names a class of windows at run time.
struct CRuntimeClass
{
    const char* m_lpszClassName;
    const CRuntimeClass* m_pBaseClass;
};

/// A device to draw on and a brush to fill with; Qt draws, so both only stand in signatures.
class CDC;
struct KdUiBrush;
using HBRUSH = KdUiBrush*;

/// A transfer between controls and variables.
struct CDataExchange
{
    bool m_bSaveAndValidate = false;
};

/// Commands of `ShowWindow`.
constexpr int SW_HIDE = 0;
constexpr int SW_SHOW = 5;

/// A window. It looks at a widget, which belongs to its Qt parent; once the widget has gone, and
/// before one is set, operations do nothing and questions answer 0, false or an empty text.
class KW_EXPORT CWnd
{
  public:
    CWnd() = default;
    virtual ~CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    virtual const CRuntimeClass* GetRuntimeClass() const;

    void setWidget(QWidget* widget) { m_widget = widget; }
    QWidget* widget() const { return m_widget; }

    void ShowWindow(int command);
    /// True unless the window itself was hidden; what its parents do plays no part.
    bool IsWindowVisible() const;
    void EnableWindow(bool enable = true);
    bool IsWindowEnabled() const;
    /// The place on the screen; untouched without a widget.
    void GetWindowRect(tagRECT* rect) const;
    /// From the screen to the coordinates of this window.
    void ScreenToClient(tagRECT* rect) const;

    /// Sees an event before its widget does; true keeps it from the widget.
    virtual bool PreTranslateMessage(tagMSG* message);
    virtual void PreSubclassWindow() {}
    virtual HBRUSH OnCtlColor(CDC*, CWnd*, unsigned int) { return nullptr; }
    virtual void OnMouseMove(unsigned int, CPoint) {}

  private:
    QPointer<QWidget> m_widget;
};
