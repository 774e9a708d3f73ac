#include <platform/safe_text.h>

#include <algorithm>
#include <cerrno>
#include <cwchar>

int wcsncpy_s(wchar_t* destination, int size, const wchar_t* source, unsigned long count)
{
    if (!destination || size < 1)
        return EINVAL;
    destination[0] = L'\0';
    if (!source)
        return EINVAL;
    const std::size_t wanted = wcsnlen(source, count);
    const std::size_t fitting = std::min(wanted, static_cast<std::size_t>(size - 1));
    std::wmemcpy(destination, source, fitting);
    destination[fitting] = L'\0';
    return fitting == wanted ? 0 : ERANGE;
}
