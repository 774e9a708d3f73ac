#include <ui/theme.h>

#include <editor/system_variables.h>
#include <runtime/status.h>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace {

struct Shade
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

// clang-format off
constexpr Shade kShades[] = {
    {QPalette::Window,          0xFFF3F4F6, 0xFF363B44},
    {QPalette::WindowText,      0xFF1D2126, 0xFFE4E7EB},
    {QPalette::Base,            0xFFFFFFFF, 0xFF22262C},
    {QPalette::AlternateBase,   0xFFF7F8FA, 0xFF292E35},
    {QPalette::Text,            0xFF1D2126, 0xFFE4E7EB},
    {QPalette::PlaceholderText, 0xFF7A828C, 0xFF8A929C},
    {QPalette::Button,          0xFFE9EBEE, 0xFF474D58},
    {QPalette::ButtonText,      0xFF1D2126, 0xFFE4E7EB},
    {QPalette::ToolTipBase,     0xFFFFFFFF, 0xFF3A3F48},
    {QPalette::ToolTipText,     0xFF1D2126, 0xFFE4E7EB},
    {QPalette::Highlight,       0xFF2D6EB9, 0xFF3F82D2},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link,            0xFF1F5FA8, 0xFF7DB4F0},
    {QPalette::BrightText,      0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Light,           0xFFFFFFFF, 0xFF565D69},
    {QPalette::Midlight,        0xFFF1F2F4, 0xFF4C535E},
    {QPalette::Mid,             0xFFB9BEC5, 0xFF2C3037},
    {QPalette::Dark,            0xFFA3A9B2, 0xFF202329},
    {QPalette::Shadow,          0xFF6F7680, 0xFF101215},
};
constexpr Shade kDisabledShades[] = {
    {QPalette::WindowText,      0xFF8D949D, 0xFF757D88},
    {QPalette::Text,            0xFF8D949D, 0xFF757D88},
    {QPalette::ButtonText,      0xFF8D949D, 0xFF757D88},
    {QPalette::Base,            0xFFECEEF0, 0xFF30353D},
    {QPalette::Highlight,       0xFFB4BCC6, 0xFF4A515C},
    {QPalette::HighlightedText, 0xFFF3F4F6, 0xFF9BA3AE},
};
// clang-format on

bool isLight()
{
    resbuf theme{};
    return kdedGetVar(L"COLORTHEME", &theme) == RTNORM && theme.resval.rint == 1;
}

} // namespace

void kduiApplyColorTheme()
{
    const bool light = isLight();
    QPalette palette;
    for (const Shade& shade : kShades)
        palette.setColor(shade.role, QColor::fromRgb(light ? shade.light : shade.dark));
    for (const Shade& shade : kDisabledShades)
        palette.setColor(QPalette::Disabled, shade.role,
                         QColor::fromRgb(light ? shade.light : shade.dark));
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(palette);
}
