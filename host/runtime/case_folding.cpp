#include <runtime/kd_string.h>

#include <QChar>

// ASCII is answered at once; for the rest the tables of Qt decide, which no locale of the process
// changes.

wchar_t kdFoldCase(wchar_t character) noexcept
{
    if (character < 0x80)
        return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
    return static_cast<wchar_t>(QChar::toLower(static_cast<uint>(character)));
}

wchar_t kdUpperCase(wchar_t character) noexcept
{
    if (character < 0x80)
        return character >= L'a' && character <= L'z' ? character - (L'a' - L'A') : character;
    return static_cast<wchar_t>(QChar::toUpper(static_cast<uint>(character)));
}
