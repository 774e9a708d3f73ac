#include <dialog/multi_text.h>

CStdStr<wchar_t>* g_pstrMulti = nullptr;
