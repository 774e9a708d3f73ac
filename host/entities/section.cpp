#include <entities/section.h>

#include <algorithm>

#include <database/database.h>

#include "corners.h"

KD_RX_DEFINE(KdDbSection, KdDbEntity, L"AcDbSection", L"SECTIONOBJECT")
KD_RX_DEFINE(KdDbSectionManager, KdDbObject, L"AcDbSectionManager", L"SECTION_MANAGER")

bool KdDbSection::isLiveSectionEnabled() const
{
    if (!database())
        return false;
    const KdDbObjectId named = database()->namedObjectsDictionaryId();
    const OpenForRead<KdDbSectionManager> manager(
        kddbDictionaryEntry(named, L"ACAD_SECTION_MANAGER"));
    return manager && manager->isLive(objectId());
}

KdErrorStatus KdDbSection::getVertex(int index, KdGePoint3d& vertex) const
{
    return elementAt(data().vertices, index, vertex);
}

bool KdDbSectionManager::isLive(KdDbObjectId section) const
{
    const auto& sections = data().sections;
    return data().live && std::find(sections.begin(), sections.end(), section) != sections.end();
}
