/// Texts between wide texts, Qt and the resource libraries.
#pragma once

#include <string>
#include <string_view>

#include <QString>

inline QString toQString(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size()));
}

inline std::wstring toWide(const QString& text)
{
    return text.toStdWString();
}

/// The text of a number in the current resource library, or `fallback` if it has none.
QString resourceText(unsigned int id, const char* fallback);
