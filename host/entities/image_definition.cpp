#include <entities/image_definition.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbRasterImageDef, KdDbObject, L"AcDbRasterImageDef", L"IMAGEDEF")

KdDbObjectId KdDbRasterImageDef::imageDictionary(const KdDbDatabase& database)
{
    return kddbDictionaryEntry(database.namedObjectsDictionaryId(), L"ACAD_IMAGE_DICT");
}
