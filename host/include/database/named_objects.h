/// Objects that stand in a drawing's named dictionaries: scales, materials, groups, settings.
#pragma once

#include <vector>

#include <database/object.h>

/// A scale that can be chosen for annotations, under a key of "ACAD_SCALELIST".
struct KW_EXPORT ScaleMembers : ObjectMembers
{
    KdString name; ///< as people read it, such as "1:50"
    double paperUnits = 1.0;
    double drawingUnits = 1.0;
    bool isUnitScale = false;
};

class KW_EXPORT KdDbScale : public KdDbObject
{
    KD_RX_DECLARE(KdDbScale)
    KD_DB_MEMBERS(ScaleMembers)

    const KdString& scaleName() const { return data().name; }
    double paperUnits() const { return data().paperUnits; }
    double drawingUnits() const { return data().drawingUnits; }
    bool isUnitScale() const { return data().isUnitScale; }
    /// Paper units by drawing units; 0 if the drawing units are 0.
    double scale() const
    {
        return data().drawingUnits != 0.0 ? data().paperUnits / data().drawingUnits : 0.0;
    }
};

/// A setting that is no header variable, under a key of "AcDbVariableDictionary".
struct KW_EXPORT DictionaryVariableMembers : ObjectMembers
{
    KdString value;
    int schema = 0;
};

class KW_EXPORT KdDbDictionaryVar : public KdDbObject
{
    KD_RX_DECLARE(KdDbDictionaryVar)
    KD_DB_MEMBERS(DictionaryVariableMembers)

    const KdString& value() const { return data().value; }
};

/// The setting of that name, such as "CANNOSCALE"; empty if the drawing does not have it.
KW_EXPORT KdString kddbDictionaryVariable(const KdDbDatabase& database, const wchar_t* name);

/// What surfaces look like, under a key of "ACAD_MATERIAL".
struct KW_EXPORT MaterialMembers : ObjectMembers
{
    KdString name;
    KdString description;
};

class KW_EXPORT KdDbMaterial : public KdDbObject
{
    KD_RX_DECLARE(KdDbMaterial)
    KD_DB_MEMBERS(MaterialMembers)

    const KdString& name() const { return data().name; }
    const KdString& description() const { return data().description; }
};

/// Entities that are picked together, under a key of "ACAD_GROUP" that is the group's name.
struct KW_EXPORT GroupMembers : ObjectMembers
{
    KdString description;
    std::vector<KdDbObjectId> entities;
    bool anonymous = false;
    bool selectable = true;
};

class KW_EXPORT KdDbGroup : public KdDbObject
{
    KD_RX_DECLARE(KdDbGroup)
    KD_DB_MEMBERS(GroupMembers)

    const KdString& description() const { return data().description; }
    const std::vector<KdDbObjectId>& allEntityIds() const { return data().entities; }
    bool isAnonymous() const { return data().anonymous; }
    bool isSelectable() const { return data().selectable; }
};
