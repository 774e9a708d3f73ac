#include <plugin/entity_pe.h>

#include <providers/general_rows.h>
#include <providers/property_row.h>
#include <values/class_descriptor.h>
#include <values/names.h>

namespace {

constexpr const wchar_t* kProtocolName = L"KdDbEntityPE";
constexpr const wchar_t* kRootProviderName = L"KdDbEntity_Extension";

} // namespace

KdRxClass* KdDbEntityPE::gpDesc = nullptr;
KdRxClass* KdDbEntity_Extension::gpDesc = nullptr;

KdRxClass* KdDbEntityPE::desc()
{
    return findDescriptor(gpDesc, kProtocolName);
}

KdRxClass* KdDbEntityPE::isA() const
{
    return desc();
}

void KdDbEntityPE::rxInit()
{
    registerDescriptor(gpDesc, {kProtocolName, KdRxObject::desc()->name(), 0, nullptr});
}

KdDbEntityPE* KdDbEntityPE::of(const KdDbEntity& entity)
{
    KdRxObject* extension = entity.x(desc());
    return extension && extension->isKindOf(desc()) ? static_cast<KdDbEntityPE*>(extension)
                                                    : nullptr;
}

KdRxClass* KdDbEntity_Extension::desc()
{
    return findDescriptor(gpDesc, kRootProviderName);
}

KdRxClass* KdDbEntity_Extension::isA() const
{
    return desc();
}

void KdDbEntity_Extension::rxInit()
{
    registerDescriptor(gpDesc, {kRootProviderName, kProtocolName, 0, nullptr});
}

int KdDbEntityPE::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                KdArray<bool>& flags)
{
    listRows(generalRows(), entity, names, flags);
    return 0;
}

int KdDbEntityPE::PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                                   bool asDisplayText, bool withChoices)
{
    if (!entity || name.isEmpty())
        return 0;
    const PropertyRow* row = findRow(generalRows(), name);
    return row ? answerRow(*row, {*entity, *result, asDisplayText, withChoices}) : 0;
}

int KdDbEntityPE::getEntityTotalLength(const KdDbEntity*, double&) const
{
    return 1;
}

int KdDbEntityPE::getEntityTotalArea(const KdDbEntity*, double&) const
{
    return 1;
}

void KdDbEntityPE::GetLayer(const KdDbEntity* entity, ResBuf*& result, bool asDisplayText) const
{
    if (!entity)
        return;
    result->setRestype(asDisplayText ? ResBuf::kString : ResBuf::kLayerName);
    result->setString(entity->layer());
}

void KdDbEntityPE::FillLineWeightList(CArray<lwUnit, const lwUnit&>& list)
{
    constexpr int kWeights[] = {0,  5,  9,  13,  15,  18,  20,  25,  30,  35,  40, 50, 53, 60,
                                70, 80, 90, 100, 106, 120, 140, 158, 200, 211, -1, -2, -3};
    for (const int weight : kWeights) {
        lwUnit line{weight, {}};
        getLineWeightName(weight, line.name);
        list.Add(line);
    }
}
