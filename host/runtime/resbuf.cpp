#include <runtime/resbuf.h>

#include <cstring>
#include <cwchar>

#include <runtime/heap.h>

namespace {

bool ownsBytes(short restype)
{
    return restype == 1004 || (restype >= 310 && restype <= 319);
}

} // namespace

resbuf* kdutNewRb(short restype)
{
    auto* record = static_cast<resbuf*>(kdHeapAlloc(sizeof(resbuf)));
    std::memset(record, 0, sizeof *record);
    record->restype = restype;
    return record;
}

void kdutRelRb(resbuf* chain)
{
    while (chain) {
        resbuf* next = chain->rbnext;
        if (kdutIsText(chain->restype))
            kdutDelString(chain->resval.rstring);
        else if (ownsBytes(chain->restype))
            kdHeapFree(chain->resval.rbinary.buf);
        kdHeapFree(chain);
        chain = next;
    }
}

wchar_t* kdutNewString(const wchar_t* text)
{
    if (!text)
        return nullptr;
    const std::size_t size = (std::wcslen(text) + 1) * sizeof(wchar_t);
    auto* copy = static_cast<wchar_t*>(kdHeapAlloc(size));
    std::memcpy(copy, text, size);
    return copy;
}

void kdutDelString(wchar_t* text)
{
    kdHeapFree(text);
}

bool kdutIsText(short restype)
{
    const bool isExtendedText = restype >= 1000 && restype <= 1009 && restype != 1004;
    const bool isGroupText =
        (restype >= 0 && restype <= 9) || (restype >= 100 && restype <= 105) ||
        (restype >= 300 && restype <= 309) || (restype >= 320 && restype <= 369) ||
        (restype >= 390 && restype <= 399) || (restype >= 410 && restype <= 419) ||
        (restype >= 430 && restype <= 439) || (restype >= 470 && restype <= 481);
    return restype == RTSTR || isExtendedText || isGroupText;
}
