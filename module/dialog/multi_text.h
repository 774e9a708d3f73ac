/// The text behind the item for all object types.
#pragma once

#include <runtime/export.h>
#include <runtime/std_str.h>

/// What the item's data points to. Owned by the dialog; null while there is none.
KW_EXPORT extern CStdStr<wchar_t>* g_pstrMulti;
