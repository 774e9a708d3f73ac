#include <kwdraw/window/theme.h>

#include <ui/theme.h>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include <algorithm>
#include <iterator>

#include <kwdraw/document/settings.h>
#include <kwdraw/view/contrast.h>
#include <kwdraw/window/contrast_style.h>

namespace {

constexpr const wchar_t* kSetting = L"Theme";
constexpr const wchar_t* kVariable = L"COLORTHEME";

struct Named
{
    Theme theme;
    const char* name;
};
constexpr Named kNames[] = {{Theme::System, "system"},
                            {Theme::Light, "light"},
                            {Theme::Dark, "dark"},
                            {Theme::HighContrast, "contrast"}};

/// The one that is nearest to the system's own colours.
Theme systemTheme()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(QPalette()); // takes away what the program has set
    const QPalette palette = QApplication::palette();
    if (isHighContrast(palette))
        return Theme::HighContrast;
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    return isDark ? Theme::Dark : Theme::Light;
}

} // namespace

QString nameOf(Theme theme)
{
    const auto found = std::find_if(std::begin(kNames), std::end(kNames),
                                    [=](const Named& each) { return each.theme == theme; });
    return QString::fromLatin1(found->name);
}

std::optional<Theme> themeNamed(const QString& name)
{
    for (const Named& each : kNames)
        if (name == QLatin1String(each.name))
            return each.theme;
    return std::nullopt;
}

Theme storedTheme()
{
    if (const auto stored = themeNamed(storedText(kSetting)))
        return *stored;
    if (systemTheme() == Theme::HighContrast)
        return Theme::HighContrast;
    return switchValue(kVariable) == 1 ? Theme::Light : Theme::Dark;
}

void storeTheme(Theme theme)
{
    storeText(kSetting, nameOf(theme));
}

void applyTheme(Theme theme)
{
    const Theme shown = theme == Theme::System ? systemTheme() : theme;
    setSwitch(kVariable, shown == Theme::Light ? 1 : 0);
    kduiApplyColorTheme();
    if (shown != Theme::HighContrast)
        return;
    QApplication::setStyle(new ContrastStyle);
    QApplication::setPalette(ContrastStyle::palette());
}
