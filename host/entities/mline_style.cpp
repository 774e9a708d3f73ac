#include <entities/mline_style.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbMlineStyle, KdDbObject, L"AcDbMlineStyle", L"MLINESTYLE")

KdDbObjectId KdDbMlineStyle::styleDictionary(const KdDbDatabase& database)
{
    return kddbDictionaryEntry(database.namedObjectsDictionaryId(), L"ACAD_MLINESTYLE");
}
