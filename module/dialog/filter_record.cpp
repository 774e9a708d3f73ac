#include <dialog/filter_record.h>

#include <values/resource_string.h>

DialogParameters::DialogParameters()
    : objectTypeName(static_cast<const wchar_t*>(__ResourceString(78023, L"Multiple")))
{
}
