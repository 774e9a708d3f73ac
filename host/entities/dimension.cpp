#include <entities/dimension.h>

#include <algorithm>
#include <cmath>
#include <cwctype>

#include <database/associativity.h>
#include <database/database.h>

#include "block_extents.h"

KD_RX_DEFINE_ABSTRACT(KdDbDimension, KdDbEntity, L"AcDbDimension")

namespace {

/// The body that makes the dimension a constraint; the null id for a plain dimension.
KdDbObjectId constraintBody(const KdDbDimension& dimension)
{
    KdArray<KdDbObjectId> dependencies;
    KdDbAssocDependency::getDependenciesOnObject(&dimension, false, true, dependencies);
    for (int i = 0; i < dependencies.length(); ++i) {
        const OpenForRead<KdDbAssocDependency> dependency(dependencies[i]);
        if (dependency &&
            dependency->dependencyBody().isKindOf(KdDbAssocDimDependencyBodyBase::desc()))
            return dependency->dependencyBody();
    }
    return {};
}

bool isOnSheet(const KdDbDimension& dimension)
{
    const KdDbObjectId block = dimension.blockId();
    if (!block.isKindOf(KdDbBlockTableRecord::desc()) || block == block.database()->modelSpaceId())
        return false;
    const OpenForRead<KdDbBlockTableRecord> record(block);
    return record && record->isLayout();
}

bool isPlainNumber(const KdString& expression)
{
    return std::ranges::none_of(expression.view(), [](wchar_t c) {
        return std::iswalpha(static_cast<std::wint_t>(c)) || c == L'(' || c == L'*' || c == L'/';
    });
}

bool hasExpressionOf(KdDbObjectId variable)
{
    const OpenForRead<KdDbAssocVariable> opened(variable);
    return opened && !isPlainNumber(opened->expression());
}

} // namespace

bool KdDbDimension::isPlanar() const
{
    return true;
}

KdErrorStatus KdDbDimension::getGeomExtents(KdGeExtents3d& extents) const
{
    // The contents of a dimension's block stand in world coordinates.
    return extentsOfBlock(dimBlockId(), extents);
}

KdErrorStatus KdDbDimension::measurement(double& value) const
{
    double measured = 0.0;
    const KdErrorStatus status = measure(measured);
    if (status != eOk)
        return status;
    if (!measuresAngle())
        measured *= lengthFactor();
    if (!std::isfinite(measured)) // damaged drawings have such points
        return eInvalidInput;
    value = measured;
    return eOk;
}

bool KdDbDimension::measuresAngle() const
{
    return false;
}

double KdDbDimension::lengthFactor() const
{
    const double factor = dimlfac();
    if (factor >= 0.0)
        return factor;
    return isOnSheet(*this) ? -factor : 1.0;
}

bool KdDbDimension::isConstraintObject() const
{
    return !constraintBody(*this).isNull();
}

bool KdDbDimension::isConstraintObject(bool& hasExpression, bool& isReference) const
{
    hasExpression = false;
    isReference = false;
    const KdDbObjectId id = constraintBody(*this);
    if (const OpenForRead<KdDbAssocDimDependencyBodyBase> body(id); body) {
        isReference = body->isReference();
        hasExpression = hasExpressionOf(body->variable());
    }
    return !id.isNull();
}

bool KdDbDimension::isConstraintDynamic() const
{
    return isConstraintObject() && layer().compareNoCase(L"*ADSK_CONSTRAINTS") == 0;
}
