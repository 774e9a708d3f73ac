#include <dimensions/dimension_provider.h>

#include <dimensions/constraint_rows.h>
#include <dimensions/dimension_readers.h>
#include <dimensions/dimension_rows.h>

int KdDbDimension_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                           KdArray<bool>& flags)
{
    const int status = KdDbEntity_Extension::PropertyCount(entity, names, flags);
    if (!entity || !entity->isKindOf(KdDbDimension::desc()))
        return 0;
    const auto& dimension = static_cast<const KdDbDimension&>(*entity);
    listRows(associativeRows(), entity, names, flags);
    if (dimension.isConstraintObject()) {
        const bool isDynamic = dimension.isConstraintDynamic();
        if (isDynamic)
            names.removeAll(); // and not the flags: as intended
        listRows(constraintRows(), entity, names, flags);
        if (isDynamic) {
            listRows(textRotationRows(), entity, names, flags);
            return kListIsComplete;
        }
    }
    listRows(dimensionRows(), entity, names, flags);
    return status;
}

int KdDbDimension_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name,
                                              ResBuf*& result, bool asDisplayText, bool withChoices)
{
    if (!entity || !entity->isKindOf(KdDbDimension::desc()))
        return 0;
    const PropertyRequest request{*entity, *result, asDisplayText, withChoices};
    for (const auto rows : {arrowRows(), associativeRows(), dimensionRows()})
        if (const PropertyRow* row = findRow(rows, name))
            return answerRow(*row, request);
    if (const PropertyRow* row = findConstraintRow(name))
        return answerRow(*row, request);
    return KdDbEntity_Extension::PropertyValueGet(entity, name, result, asDisplayText, withChoices);
}

LastingRow KdDbDimension_Extension::lastingRow(const KdRxClass& rxClass, const KdString& key)
{
    if (!rxClass.isDerivedFrom(KdDbDimension::desc()))
        return nullptr;
    for (const auto rows : {arrowRows(), associativeRows(), dimensionRows()})
        if (const LastingRow row = findLastingRow(rows, key); row != nullptr)
            return row;
    const LastingRow row = findLastingConstraintRow(key);
    return row == nullptr ? findLastingRow(generalRows(), key) : row;
}

bool KdDbDimension_Extension::isSuppressed(signed char value, signed char mask)
{
    return suppressesZeros(value, mask);
}

resbuf* KdDbDimension_Extension::findDimXdataValue(resbuf* list, int key)
{
    return valueOfKey(list, key);
}

short KdDbDimension_Extension::GetDimStylePSV_DIMTALN(KdDbDimStyleTableRecord* style)
{
    return toleranceAlignmentOf(style);
}

KdDbAssocVariable*
KdDbDimension_Extension::getVariableFromDimConstraint(const KdDbDimension* dimension)
{
    return variableOfConstraint(dimension);
}

bool KdDbDimension_Extension::getAltPrefix(const KdDbDimension* dimension, ResBuf*& result)
{
    if (dimension)
        storeTagged(*result, prefixOf(dimension->dimapost()));
    return dimension != nullptr;
}

bool KdDbDimension_Extension::getAltSuffix(const KdDbDimension* dimension, ResBuf*& result)
{
    if (dimension)
        storeTagged(*result, suffixOf(dimension->dimapost()));
    return dimension != nullptr;
}
