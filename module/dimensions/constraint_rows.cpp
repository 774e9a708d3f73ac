#include <dimensions/constraint_rows.h>

#include <algorithm>

#include <database/associativity.h>
#include <editor/units.h>
#include <entities/angular_dimensions.h>

#include <providers/name_rows.h>

namespace {

constexpr ResourceText kForms[] = {{78309, L"Dynamic"}, {78310, L"Annotational"}};

KdString form(const KdDbDimension& dimension)
{
    return kForms[dimension.isConstraintDynamic() ? 0 : 1].text();
}

bool isReference(const KdDbDimension& dimension)
{
    bool hasExpression = false;
    bool reference = false;
    dimension.isConstraintObject(hasExpression, reference);
    return reference;
}

bool isAngular(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDb3PointAngularDimension::desc()) ||
           entity.isKindOf(KdDb2LineAngularDimension::desc());
}

/// In the units and the precision of the drawing.
KdString valueText(const KdDbEntity& entity, const KdDbAssocVariable& variable)
{
    constexpr int kOfTheDrawing = -1;
    double value = 0.0;
    variable.value().getValue(value);
    KdString text;
    if (isAngular(entity))
        kddbAngToS(KdadUnitsFormatter::angleToRadian(value), text, kOfTheDrawing, kOfTheDrawing);
    else
        kddbRToS(value, text, kOfTheDrawing, kOfTheDrawing);
    return text;
}

KdString variableName(const KdDbEntity&, const KdDbAssocVariable& variable)
{
    return variable.name();
}

KdString expression(const KdDbEntity&, const KdDbAssocVariable& variable)
{
    return variable.expression();
}

KdString description(const KdDbEntity&, const KdDbAssocVariable& variable)
{
    return variable.description();
}

/// A text that the variable gives. A dimension without a variable is no constraint, and has none.
template <KdString (*Text)(const KdDbEntity&, const KdDbAssocVariable&)>
bool ofVariable(const PropertyRequest& request, ValueKind kind)
{
    const auto& dimension = static_cast<const KdDbDimension&>(request.entity);
    const KdDbAssocVariable* variable = variableOfConstraint(&dimension);
    if (!variable)
        return false;
    request.head.setRestype(kind);
    request.head.setString(Text(dimension, *variable));
    return true;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                 read-only  kind             value                     choices
    {{78303, L"Constrain:Constraint form"}, derived,  ResBuf::kString, value<form>,              namesOf<kForms>},
    {{78304, L"Constrain:Reference"},       derived,  ResBuf::kBool,   value<isReference>},
    {{78305, L"Constrain:Name"},            editable, ResBuf::kString, ofVariable<variableName>},
    {{78306, L"Constrain:Expression"},      editable, ResBuf::kString, ofVariable<expression>},
    {{78307, L"Constrain:Value"},           editable, ResBuf::kString, ofVariable<valueText>},
    {{78308, L"Constrain:Description"},     editable, ResBuf::kString, ofVariable<description>},
};
// clang-format on

/// The variable that the body of a dependency names; the null id if there is none.
KdDbObjectId variableBehind(KdDbObjectId dependencyId)
{
    if (!dependencyId.isKindOf(KdDbAssocDependency::desc()))
        return {};
    const OpenForRead<KdDbAssocDependency> dependency(dependencyId);
    if (!dependency || !dependency->dependencyBody().isKindOf(KdDbAssocDimDependencyBody::desc()))
        return {};
    const OpenForRead<KdDbAssocDimDependencyBody> body(dependency->dependencyBody());
    return body ? body->variable() : KdDbObjectId();
}

} // namespace

std::span<const PropertyRow> constraintRows()
{
    return kRows;
}

const PropertyRow* findConstraintRow(const KdString& name)
{
    const auto* const row = std::ranges::find_if(
        kRows, [&name](const PropertyRow& each) { return each.key.matchesNoCase(name); });
    return row == std::end(kRows) ? nullptr : row;
}

LastingRow findLastingConstraintRow(const KdString& name)
{
    const bool areThere =
        std::ranges::all_of(kRows, [](const PropertyRow& each) { return each.key.isThere(); });
    return areThere ? LastingRow(findConstraintRow(name)) : std::nullopt;
}

KdDbAssocVariable* variableOfConstraint(const KdDbDimension* dimension)
{
    if (!dimension || !dimension->isConstraintObject())
        return nullptr;
    KdArray<KdDbObjectId> dependencies;
    KdDbAssocDependency::getDependenciesOnObject(dimension, false, true, dependencies);
    KdDbObjectId id;
    for (int i = 0; i < dependencies.length() && id.isNull(); ++i)
        id = variableBehind(dependencies[i]);
    KdDbAssocVariable* variable = nullptr;
    if (kddbOpenObject(variable, id) == eOk)
        variable->close(); // it may be read on, as any closed object
    return variable;
}
