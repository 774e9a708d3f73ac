/// The colours of all windows.
#pragma once

#include <QString>

#include <optional>

enum class Theme
{
    System, ///< what the system's own windows look like
    Light,
    Dark,
    HighContrast,
};

/// "system", "light", "dark" or "contrast", as the options and the settings name them.
QString nameOf(Theme theme);
std::optional<Theme> themeNamed(const QString& name);

/// What the user chose last. Who has chosen nothing yet gets what "COLORTHEME" says, or high
/// contrast where the system shows it.
Theme storedTheme();
void storeTheme(Theme theme);

/// Gives all windows these colours. "COLORTHEME", which knows light and dark alone, says which of
/// them is nearer; high contrast is dark. Needs a QApplication.
void applyTheme(Theme theme);
