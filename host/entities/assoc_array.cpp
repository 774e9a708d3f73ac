#include <entities/assoc_array.h>

#include <algorithm>

#include <entities/block_reference.h>

KD_RX_DEFINE_ABSTRACT(KdDbGeomRef, KdRxObject, L"AcDbGeomRef")
KD_RX_DEFINE(KdDbVertexRef, KdDbGeomRef, L"AcDbVertexRef", L"")
KD_RX_DEFINE(KdDbEdgeRef, KdDbGeomRef, L"AcDbEdgeRef", L"")
KD_RX_DEFINE(KdDbAssocArrayParameters, KdRxObject, L"AcDbAssocArrayParameters", L"")
KD_RX_DEFINE(KdDbAssocArrayRectangularParameters, KdDbAssocArrayParameters,
             L"AcDbAssocArrayRectangularParameters", L"")
KD_RX_DEFINE(KdDbAssocArrayPolarParameters, KdDbAssocArrayParameters,
             L"AcDbAssocArrayPolarParameters", L"")
KD_RX_DEFINE(KdDbAssocArrayPathParameters, KdDbAssocArrayParameters,
             L"AcDbAssocArrayPathParameters", L"")
KD_RX_DEFINE(KdDbAssocArrayActionBody, KdDbAssocActionBody, L"AcDbAssocArrayActionBody",
             L"ACDBASSOCARRAYACTIONBODY")

namespace {

template <class Named>
auto findNamed(Named& all, std::wstring_view name)
{
    return std::find_if(all.begin(), all.end(),
                        [=](const auto& each) { return each.name.view() == name; });
}

} // namespace

KdErrorStatus KdDbAssocArrayParameters::getValueParam(std::wstring_view name,
                                                      KdDbEvalVariant& value, KdString& expression,
                                                      KdString& evaluator, int& unit) const
{
    const auto found = findNamed(m_values, name);
    if (found == m_values.end() || found->values.empty())
        return eNoValueParam;
    value = found->values.front();
    expression = found->expression;
    evaluator = KdString();
    unit = found->unit;
    return eOk;
}

void KdDbAssocArrayParameters::setValueParam(const AssocValueParameter& parameter)
{
    const auto found = findNamed(m_values, parameter.name);
    if (found != m_values.end())
        *found = parameter;
    else
        m_values.push_back(parameter);
}

KdErrorStatus KdDbAssocArrayParameters::getGeomParam(std::wstring_view name,
                                                     const KdDbGeomRef*& reference,
                                                     KdDbObjectId& id) const
{
    const auto found = findNamed(m_geometry, name);
    if (found == m_geometry.end())
        return eKeyNotFound;
    reference = found->reference.get();
    id = found->id;
    return eOk;
}

void KdDbAssocArrayParameters::setGeomParam(const wchar_t* name,
                                            std::shared_ptr<const KdDbGeomRef> reference,
                                            KdDbObjectId id)
{
    const auto found = findNamed(m_geometry, name);
    if (found != m_geometry.end())
        *found = {name, std::move(reference), id};
    else
        m_geometry.push_back({name, std::move(reference), id});
}

const KdDbEdgeRef* KdDbAssocArrayPathParameters::path() const
{
    const KdDbGeomRef* reference = nullptr;
    KdDbObjectId id;
    const bool isEdge = getGeomParam(L"Path", reference, id) == eOk && reference &&
                        reference->isKindOf(KdDbEdgeRef::desc());
    return isEdge ? static_cast<const KdDbEdgeRef*>(reference) : nullptr;
}

KdDbObjectId KdDbAssocArrayActionBody::getControllingActionBody(const KdDbEntity* entity,
                                                                const void*)
{
    return entity ? controlling(*entity, desc()) : KdDbObjectId();
}

KdErrorStatus KdDbAssocArrayActionBody::getSourceBasePoint(KdDbVertexRef&, KdGePoint3d& point) const
{
    point = data().sourceBasePoint;
    return eOk;
}

const KdDbAssocArrayParameters*
kddbGetAssocArrayParametersConst(const KdDbBlockReference* reference)
{
    const OpenForRead<KdDbAssocArrayActionBody> body(
        KdDbAssocArrayActionBody::getControllingActionBody(reference, nullptr));
    return body ? body->arrayParameters() : nullptr;
}
