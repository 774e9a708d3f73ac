#include "texts.h"

#include <platform/resources.h>

QString resourceText(unsigned int id, const char* fallback)
{
    const wchar_t* text = nullptr;
    // With size 0 the buffer argument stands for the place of a pointer.
    const int length =
        LoadStringW(AfxGetResourceHandle(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? QString::fromWCharArray(text, length) : QString::fromUtf8(fallback);
}
