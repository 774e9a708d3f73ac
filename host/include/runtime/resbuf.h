/// The platform's list record: typed values in a chain, as extended data and system variables use.
#pragma once

#include <cstdint>

#include <runtime/export.h>

/// A pair of longs that names an entity or a selection set.
using kds_name = long[2];

/// A block of bytes, owned by the record that holds it.
struct kds_binary
{
    short clen;
    char* buf;
};

/// The value of a record; which member counts follows from `restype`.
union kds_value
{
    double rreal;
    double rpoint[3];
    short rint;
    std::int32_t rlong;
    std::int64_t rint64;
    wchar_t* rstring; ///< owned by the record, allocated by `kdutNewString`
    kds_name rlname;
    kds_binary rbinary;
};

/// One record of a chain. The chain is owned by whoever holds its head and freed by `kdutRelRb`.
struct resbuf
{
    resbuf* rbnext;
    short restype;
    kds_value resval;
};

/// Restypes of values that do not come from a drawing file. A drawing's own group codes are the
/// others.
constexpr short RTNONE = 5000;
constexpr short RTREAL = 5001;
constexpr short RTPOINT = 5002;
constexpr short RTSHORT = 5003;
constexpr short RTANG = 5004;
constexpr short RTSTR = 5005;
constexpr short RT3DPOINT = 5009;
constexpr short RTLONG = 5010;

/// A cleared record of that type, owned by the caller.
KW_EXPORT resbuf* kdutNewRb(short restype);
/// Frees a whole chain with its texts and blocks; null is allowed.
KW_EXPORT void kdutRelRb(resbuf* chain);
/// A copy of the records from `first` up to `end`, which is not among them, owned by the caller.
/// Null if there are none.
KW_EXPORT resbuf* kdutCopyRb(const resbuf* first, const resbuf* end);
/// A copy of `text` that `kdutRelRb` may free; null stays null.
KW_EXPORT wchar_t* kdutNewString(const wchar_t* text);
/// Frees a text that `kdutNewString` or a system variable gave.
KW_EXPORT void kdutDelString(wchar_t* text);
/// True if records of that type own a text (text kinds and the text group codes of drawings).
KW_EXPORT bool kdutIsText(short restype);
