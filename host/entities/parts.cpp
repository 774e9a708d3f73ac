#include <entities/parts.h>

#include <entities/curve.h>
#include <entities/vertex.h>

void KdDbPartList::append(KdDbObjectId part)
{
    if (part.isNull())
        return;
    if (!m_content)
        m_content = std::make_unique<Content>();
    if (part.objectClass()->isDerivedFrom(KdDbSequenceEnd::desc()))
        m_content->sequenceEnd = part;
    else
        m_content->ids.push_back(part);
}

std::span<const KdDbObjectId> KdDbPartList::ids() const
{
    return m_content ? std::span<const KdDbObjectId>(m_content->ids)
                     : std::span<const KdDbObjectId>();
}

KdDbObjectId KdDbPartList::sequenceEnd() const
{
    return m_content ? m_content->sequenceEnd : KdDbObjectId();
}

const KdDbPartList* kddbPartsOf(const KdDbEntity& entity)
{
    if (const auto* curve = dynamic_cast<const KdDbOwnerOfParts<KdDbCurve>*>(&entity))
        return &curve->parts();
    if (const auto* other = dynamic_cast<const KdDbOwnerOfParts<KdDbEntity>*>(&entity))
        return &other->parts();
    return nullptr;
}
