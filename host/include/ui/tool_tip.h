/// Hints that come up under the mouse.
#pragma once

#include <memory>

#include <ui/wnd.h>

/// Kinds of delay.
constexpr int TTDT_RESHOW = 1;  ///< from one hint to the next
constexpr int TTDT_AUTOPOP = 2; ///< how long a hint stays
constexpr int TTDT_INITIAL = 3; ///< how long the mouse rests before a hint

/// Shows a hint for each of its tools while the mouse rests on it. It learns of the mouse by the
/// events that its dialog relays.
class KW_EXPORT CToolTipCtrl : public CWnd
{
  public:
    explicit CToolTipCtrl(QWidget* parent = nullptr);
    ~CToolTipCtrl() override;

    bool Create(CWnd* parent);
    /// Longer texts are broken into lines; pixels.
    void SetMaxTipWidth(int width);
    void SetDelayTime(int kind, int milliseconds);
    void Activate(int active);
    void AddTool(CWnd* tool, const wchar_t* text);
    void RelayEvent(tagMSG* message);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// How many pixels stand for one pixel of a screen with 96 dots to the inch.
KW_EXPORT double kdadGetDPIScale();
