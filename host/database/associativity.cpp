#include <database/associativity.h>

#include <algorithm>

#include <database/dictionary.h>

KD_RX_DEFINE(KdDbAssocAction, KdDbObject, L"AcDbAssocAction", L"ACDBASSOCACTION")
KD_RX_DEFINE(KdDbAssocNetwork, KdDbAssocAction, L"AcDbAssocNetwork", L"ACDBASSOCNETWORK")
KD_RX_DEFINE(KdDbAssoc2dConstraintGroup, KdDbAssocAction, L"AcDbAssoc2dConstraintGroup",
             L"ACDBASSOC2DCONSTRAINTGROUP")
KD_RX_DEFINE(KdDbAssocVariable, KdDbAssocAction, L"AcDbAssocVariable", L"ACDBASSOCVARIABLE")
KD_RX_DEFINE(KdDbAssocDependency, KdDbObject, L"AcDbAssocDependency", L"ACDBASSOCDEPENDENCY")
KD_RX_DEFINE(KdDbAssocGeomDependency, KdDbAssocDependency, L"AcDbAssocGeomDependency",
             L"ACDBASSOCGEOMDEPENDENCY")
KD_RX_DEFINE(KdDbAssocValueDependency, KdDbAssocDependency, L"AcDbAssocValueDependency",
             L"ACDBASSOCVALUEDEPENDENCY")
KD_RX_DEFINE_ABSTRACT(KdDbAssocDependencyBody, KdDbObject, L"AcDbAssocDependencyBody")
KD_RX_DEFINE_ABSTRACT(KdDbAssocDimDependencyBodyBase, KdDbAssocDependencyBody,
                      L"AcDbAssocDimDependencyBodyBase")
KD_RX_DEFINE(KdDbAssocDimDependencyBody, KdDbAssocDimDependencyBodyBase,
             L"AcDbAssocDimDependencyBody", L"ASSOCDIMDEPENDENCYBODY")
KD_RX_DEFINE(KdDbDimAssoc, KdDbObject, L"AcDbDimAssoc", L"DIMASSOC")

namespace {

/// The variable that a group of constraints measures by the dimension of `dependency`.
KdDbObjectId measuredVariable(KdDbObjectId group, KdDbObjectId dependency)
{
    if (!group.isKindOf(KdDbAssoc2dConstraintGroup::desc()))
        return {};
    const OpenForRead<KdDbAssoc2dConstraintGroup> constraints(group);
    if (!constraints)
        return {};
    const auto& measures = constraints->measures();
    const auto found = std::ranges::find(measures, dependency,
                                         &KdDbAssoc2dConstraintGroup::Measure::dimensionDependency);
    if (found == measures.end() || !found->valueDependency.isKindOf(KdDbAssocDependency::desc()))
        return {};
    const OpenForRead<KdDbAssocDependency> value(found->valueDependency);
    return value ? value->dependentOnObject() : KdDbObjectId();
}

/// The variable of a name among the actions of a network.
KdDbObjectId variableOfName(KdDbObjectId network, const KdString& name)
{
    if (!network.isKindOf(KdDbAssocNetwork::desc()))
        return {};
    const OpenForRead<KdDbAssocNetwork> opened(network);
    if (!opened)
        return {};
    for (const KdDbObjectId id : opened->actions()) {
        if (!id.isKindOf(KdDbAssocVariable::desc()))
            continue;
        const OpenForRead<KdDbAssocVariable> variable(id);
        if (variable && variable->name().compareNoCase(name) == 0)
            return id;
    }
    return {};
}

/// The name in a text such as "d1=13" or "d1".
KdString nameInText(const KdString& text)
{
    const int sign = text.find(L"=");
    return sign < 0 ? text : text.substr(0, static_cast<std::size_t>(sign));
}

} // namespace

KdErrorStatus KdDbAssocDependency::getDependenciesOnObject(const KdDbObject* object, bool reading,
                                                           bool writing, KdArray<KdDbObjectId>& ids)
{
    if (!object)
        return eNullObjectPointer;
    for (const KdDbObjectId id : object->reactors()) {
        if (!id.isKindOf(KdDbAssocDependency::desc()))
            continue;
        const OpenForRead<KdDbAssocDependency> dependency(id);
        if (dependency && ((reading && dependency->isReadDependency()) ||
                           (writing && dependency->isWriteDependency())))
            ids.append(id);
    }
    return eOk;
}

KdDbObjectId KdDbAssocDimDependencyBodyBase::variable() const
{
    if (!data().variable.isNull())
        return data().variable;
    const KdDbObjectId dependency = ownerId();
    const KdDbObjectId group = dependency.ownerId();
    const KdDbObjectId measured = measuredVariable(group, dependency);
    return measured.isNull() ? variableOfName(group.ownerId(), nameInText(entityText())) : measured;
}

bool kddbIsAssociativeDimension(const KdDbObject& object)
{
    return !kddbExtensionEntry(object, L"ACAD_DIMASSOC").isNull();
}
