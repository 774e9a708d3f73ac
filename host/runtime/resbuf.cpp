#include <runtime/resbuf.h>

#include <algorithm>
#include <cstring>
#include <cwchar>

#include <runtime/heap.h>

namespace {

bool ownsBytes(short restype)
{
    return restype == 1004 || (restype >= 310 && restype <= 319);
}

resbuf* copyOf(const resbuf& record)
{
    resbuf* copy = kdutNewRb(record.restype);
    copy->resval = record.resval;
    if (kdutIsText(record.restype)) {
        copy->resval.rstring = kdutNewString(record.resval.rstring);
    } else if (ownsBytes(record.restype) && record.resval.rbinary.buf) {
        const auto size = static_cast<std::size_t>(std::max<short>(record.resval.rbinary.clen, 0));
        copy->resval.rbinary.buf = static_cast<char*>(kdHeapAlloc(std::max<std::size_t>(size, 1)));
        std::memcpy(copy->resval.rbinary.buf, record.resval.rbinary.buf, size);
    }
    return copy;
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

resbuf* kdutCopyRb(const resbuf* first, const resbuf* end)
{
    resbuf* head = nullptr;
    resbuf** next = &head;
    for (; first && first != end; first = first->rbnext) {
        *next = copyOf(*first);
        next = &(*next)->rbnext;
    }
    return head;
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
