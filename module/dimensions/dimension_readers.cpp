#include <dimensions/dimension_readers.h>

namespace {

constexpr std::wstring_view kMeasurement = L"<>";

} // namespace

// Feet and inches count through four states, of which 0 is that before the first; the remainder is
// -1 there, with all bits set.
bool suppressesZeros(int value, int mask)
{
    if (mask & (kZeroInches | kZeroFeet))
        return ((value - 1) % 4 & mask) > 0;
    if (mask & (kLeadingZeros | kTrailingZeros))
        return (value & mask) > 0;
    return false;
}

KdString prefixOf(const KdString& dimensionTemplate)
{
    const int place = dimensionTemplate.find(kMeasurement);
    return place < 0 ? KdString() : dimensionTemplate.substr(0, static_cast<std::size_t>(place));
}

KdString suffixOf(const KdString& dimensionTemplate)
{
    const int place = dimensionTemplate.find(kMeasurement);
    return place < 0
               ? dimensionTemplate
               : dimensionTemplate.substr(static_cast<std::size_t>(place) + kMeasurement.size());
}

void storeTagged(ResBuf& head, const KdString& text)
{
    head.setRestype(ResBuf::kString);
    head.setString(text);
    chainTag(head, 0);
}

resbuf* valueOfKey(resbuf* list, int key)
{
    resbuf* record = list ? list->rbnext : nullptr;
    while (record && record->resval.rint != key)
        record = record->rbnext ? record->rbnext->rbnext : nullptr;
    return record ? record->rbnext : nullptr;
}

short toleranceAlignmentOf(const KdDbDimStyleTableRecord* style)
{
    constexpr int kAlignment = 392;
    if (!style)
        return 0;
    const resbuf* value = valueOfKey(style->xData(L"ACAD_DSTYLE_DIMTALN"), kAlignment);
    return value ? value->resval.rint : short{0};
}

bool styleHasAlternateUnits(const KdDbDimension& dimension)
{
    const KdDbObjectId id = dimension.dimensionStyle();
    if (!id.isKindOf(KdDbDimStyleTableRecord::desc()))
        return false;
    const OpenForRead<KdDbDimStyleTableRecord> style(id);
    return style && style->dimalt();
}
