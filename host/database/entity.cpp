#include <database/entity.h>

#include <database/class_ids.h>
#include <database/database.h>

KD_RX_DEFINE_ABSTRACT(KdDbEntity, KdDbObject, L"AcDbEntity")

namespace {

// One text for all entities, so that none is made for each.
const KdString& byLayerName()
{
    static const KdString name(L"ByLayer");
    return name;
}

const KdString& byBlockName()
{
    static const KdString name(L"ByBlock");
    return name;
}

KdString recordName(KdDbObjectId id)
{
    const OpenForRead<KdDbSymbolTableRecord> record(id);
    return record ? record->name() : KdString();
}

} // namespace

KdString KdDbEntity::layer() const
{
    return recordName(m_layer);
}

KdCmColor KdDbEntity::color() const
{
    KdCmColor color(data().color);
    if (!data().seldom->colorName.isEmpty())
        color.setNames(data().seldom->colorName);
    return color;
}

KdString KdDbEntity::linetype() const
{
    return linetypeId().isNull() ? byLayerName() : recordName(linetypeId());
}

KdString KdDbEntity::plotStyleName() const
{
    using PlotStyle = EntityMembers::PlotStyle;
    switch (data().plotStyleKind) {
    case PlotStyle::ByLayer:
        return byLayerName();
    case PlotStyle::ByBlock:
        return byBlockName();
    default:
        break;
    }
    KdDbDictionary* styles = nullptr;
    if (!database() || database()->getPlotStyleNameDictionary(styles, KdDb::kForRead) != eOk)
        return {};
    KdDbObjectId wanted = data().seldom->plotStyle;
    if (data().plotStyleKind == PlotStyle::DictionaryDefault &&
        styles->isKindOf(KdDbDictionaryWithDefault::desc()))
        wanted = static_cast<KdDbDictionaryWithDefault*>(styles)->defaultId();
    KdString name;
    styles->nameAt(wanted, name);
    styles->close();
    return name;
}

void KdDbEntity::setPropertiesFrom(const KdDbEntity& other)
{
    EntityMembers& mine = edit();
    const EntityMembers& theirs = other.data();
    mine.linetype = theirs.linetype;
    mine.seldom = theirs.seldom;
    mine.color = theirs.color;
    mine.lineweight = theirs.lineweight;
    mine.plotStyleKind = theirs.plotStyleKind;
    mine.shadows = theirs.shadows;
    mine.invisible = theirs.invisible;
    m_layer = other.m_layer;
}

bool KdDbEntity::castShadows() const
{
    using Shadows = EntityMembers::Shadows;
    return data().shadows == Shadows::CastAndReceive || data().shadows == Shadows::Cast;
}

bool KdDbEntity::receiveShadows() const
{
    using Shadows = EntityMembers::Shadows;
    return data().shadows == Shadows::CastAndReceive || data().shadows == Shadows::Receive;
}

bool KdDbEntity::isPlanar() const
{
    return false;
}

KdErrorStatus KdDbEntity::getGripPoints(KdArray<KdGePoint3d>&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbEntity::getGeomExtents(KdGeExtents3d&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbEntity::getBoundingPoints(KdArray<KdGePoint3d>&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbEntity::getOutline(KdArray<KdGePoint3d>&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbEntity::getClassID(CLSID* classId) const
{
    if (!classId)
        return eInvalidInput;
    *classId = CLSID_KdadEntity;
    return eOk;
}

KdDbObjectId KdDbEntity::blockId() const
{
    const KdDbObjectId owner = ownerId();
    return owner.isKindOf(KdDbEntity::desc()) ? owner.ownerId() : owner;
}
