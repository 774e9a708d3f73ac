#include <ui/wnd.h>

namespace {

constexpr CRuntimeClass kWndClass = {"CWnd", nullptr};

} // namespace

CWnd::~CWnd() = default;

const CRuntimeClass* CWnd::GetRuntimeClass() const
{
    return &kWndClass;
}

void CWnd::ShowWindow(int command)
{
    if (m_widget)
        m_widget->setVisible(command != SW_HIDE);
}

bool CWnd::IsWindowVisible() const
{
    return m_widget && !m_widget->isHidden();
}

void CWnd::EnableWindow(bool enable)
{
    if (m_widget)
        m_widget->setEnabled(enable);
}

bool CWnd::IsWindowEnabled() const
{
    return m_widget && m_widget->isEnabled();
}

void CWnd::GetWindowRect(tagRECT* rect) const
{
    if (!m_widget || !rect)
        return;
    const QPoint corner = m_widget->mapToGlobal(QPoint(0, 0));
    *rect = {corner.x(), corner.y(), corner.x() + m_widget->width(),
             corner.y() + m_widget->height()};
}

void CWnd::ScreenToClient(tagRECT* rect) const
{
    if (!m_widget || !rect)
        return;
    const QPoint corner = m_widget->mapFromGlobal(QPoint(rect->left, rect->top));
    const int width = rect->right - rect->left;
    const int height = rect->bottom - rect->top;
    *rect = {corner.x(), corner.y(), corner.x() + width, corner.y() + height};
}

bool CWnd::PreTranslateMessage(tagMSG*)
{
    return false;
}
