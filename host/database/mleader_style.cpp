#include <database/mleader_style.h>

#include <database/dictionary.h>

KD_RX_DEFINE(KdDbMLeaderStyle, KdDbObject, L"AcDbMLeaderStyle", L"MLEADERSTYLE")

KdString KdDbMLeaderStyle::getName() const
{
    KdString name;
    if (!ownerId().isKindOf(KdDbDictionary::desc()))
        return name;
    if (const OpenForRead<KdDbDictionary> styles(ownerId()); styles)
        styles->nameAt(objectId(), name);
    return name;
}
