#include <database/named_objects.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbScale, KdDbObject, L"AcDbScale", L"SCALE")
KD_RX_DEFINE(KdDbDictionaryVar, KdDbObject, L"AcDbDictionaryVar", L"DICTIONARYVAR")
KD_RX_DEFINE(KdDbMaterial, KdDbObject, L"AcDbMaterial", L"MATERIAL")
KD_RX_DEFINE(KdDbGroup, KdDbObject, L"AcDbGroup", L"GROUP")

KdString kddbDictionaryVariable(const KdDbDatabase& database, const wchar_t* name)
{
    const KdDbObjectId settings =
        kddbDictionaryEntry(database.namedObjectsDictionaryId(), L"AcDbVariableDictionary");
    const OpenForRead<KdDbDictionaryVar> setting(kddbDictionaryEntry(settings, name));
    return setting ? setting->value() : KdString();
}
