#include <database/reserved_strings.h>

const wchar_t* kddbGetReservedString(int number, bool)
{
    switch (number) {
    case ReservedString::ByLayer:
        return L"ByLayer";
    case ReservedString::ByBlock:
        return L"ByBlock";
    case ReservedString::Default:
        return L"Default";
    default:
        return L"";
    }
}
