#include <entities/mline_style.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbMlineStyle, KdDbObject, L"AcDbMlineStyle", L"MLINESTYLE")

KdCmColor KdDbMlineStyle::colorOf(std::size_t line) const
{
    return line < data().colors.size() ? KdCmColor(data().colors[line]) : KdCmColor();
}

KdDbObjectId KdDbMlineStyle::linetypeOf(std::size_t line) const
{
    return line < data().linetypes.size() ? data().linetypes[line] : KdDbObjectId();
}

KdDbObjectId KdDbMlineStyle::styleDictionary(const KdDbDatabase& database)
{
    return kddbDictionaryEntry(database.namedObjectsDictionaryId(), L"ACAD_MLINESTYLE");
}
