/// Objects that keep entities in step: actions, what they depend on, variables, and the objects
/// that tie dimensions to what they measure.
#pragma once

#include <vector>

#include <database/eval_variant.h>
#include <database/object.h>
#include <runtime/kd_array.h>

/// A quantity that a person may set, such as the number of rows of an array.
struct KW_EXPORT AssocValueParameter
{
    KdString name;
    KdString expression;
    int unit = 0;                        ///< 0 none, 1 distance, 2 angle
    std::vector<KdDbEvalVariant> values; ///< one as a rule
};

struct KW_EXPORT AssocActionMembers : ObjectMembers
{
    KdDbObjectId network; ///< that the action belongs to
    KdDbObjectId body;    ///< what the action does, where that is an object of its own
    std::vector<KdDbObjectId> dependencies;
    std::vector<AssocValueParameter> values; ///< in old drawings those of the body
};

/// Something to be done anew when what it depends on changes. Owns its dependencies.
class KW_EXPORT KdDbAssocAction : public KdDbObject
{
    KD_RX_DECLARE(KdDbAssocAction)
    KD_DB_MEMBERS(AssocActionMembers)

    KdDbObjectId owningNetwork() const { return data().network; }
    KdDbObjectId actionBody() const { return data().body; }
    const std::vector<KdDbObjectId>& dependencies() const { return data().dependencies; }
    const std::vector<AssocValueParameter>& values() const { return data().values; }
};

struct KW_EXPORT AssocNetworkMembers : AssocActionMembers
{
    std::vector<KdDbObjectId> actions;
};

/// The actions of a block or of the whole drawing, other networks among them.
class KW_EXPORT KdDbAssocNetwork : public KdDbAssocAction
{
    KD_RX_DECLARE(KdDbAssocNetwork)
    KD_DB_MEMBERS(AssocNetworkMembers)

    const std::vector<KdDbObjectId>& actions() const { return data().actions; }
};

struct KW_EXPORT AssocConstraintGroupMembers : AssocActionMembers
{
    /// A dimensional constraint: a dependency on the variable and one on the dimension.
    struct Measure
    {
        KdDbObjectId valueDependency;
        KdDbObjectId dimensionDependency;
    };
    std::vector<Measure> measures;
};

/// Constraints that are solved together.
class KW_EXPORT KdDbAssoc2dConstraintGroup : public KdDbAssocAction
{
    KD_RX_DECLARE(KdDbAssoc2dConstraintGroup)
    KD_DB_MEMBERS(AssocConstraintGroupMembers)

    using Measure = AssocConstraintGroupMembers::Measure;
    const std::vector<Measure>& measures() const { return data().measures; }
};

struct KW_EXPORT AssocVariableMembers : AssocActionMembers
{
    KdString name;
    KdString expression;
    KdString evaluator;
    KdString description;
    KdDbEvalVariant value;
};

/// A named value. Angles are in degrees.
class KW_EXPORT KdDbAssocVariable : public KdDbAssocAction
{
    KD_RX_DECLARE(KdDbAssocVariable)
    KD_DB_MEMBERS(AssocVariableMembers)

    const KdString& name() const { return data().name; }
    const KdString& expression() const { return data().expression; }
    const KdString& evaluatorId() const { return data().evaluator; }
    const KdString& description() const { return data().description; }
    const KdDbEvalVariant& value() const { return data().value; }
};

struct KW_EXPORT AssocDependencyMembers : ObjectMembers
{
    KdDbObjectId dependentOn;
    KdDbObjectId body; ///< null for most
    bool reads = true;
    bool writes = false;
};

/// The dependency of the action that owns it on an object.
class KW_EXPORT KdDbAssocDependency : public KdDbObject
{
    KD_RX_DECLARE(KdDbAssocDependency)
    KD_DB_MEMBERS(AssocDependencyMembers)

    KdDbObjectId owningAction() const { return ownerId(); }
    KdDbObjectId dependentOnObject() const { return data().dependentOn; }
    KdDbObjectId dependencyBody() const { return data().body; }
    bool isReadDependency() const { return data().reads; }
    bool isWriteDependency() const { return data().writes; }

    /// Appends the dependencies on `object`, which are among its reactors: those that read it,
    /// those that write it, or both. `eNullObjectPointer`, `ids` untouched, for null.
    static KdErrorStatus getDependenciesOnObject(const KdDbObject* object, bool reading,
                                                 bool writing, KdArray<KdDbObjectId>& ids);
};

/// On a part of the geometry of an entity.
class KW_EXPORT KdDbAssocGeomDependency : public KdDbAssocDependency
{
    KD_RX_DECLARE(KdDbAssocGeomDependency)
};

/// On the value of a variable.
class KW_EXPORT KdDbAssocValueDependency : public KdDbAssocDependency
{
    KD_RX_DECLARE(KdDbAssocValueDependency)
};

/// What a dependency does beyond watching; the dependency owns it.
class KW_EXPORT KdDbAssocDependencyBody : public KdDbObject
{
    KD_RX_DECLARE(KdDbAssocDependencyBody)
};

struct KW_EXPORT AssocDimDependencyBodyMembers : ObjectMembers
{
    KdString text;         ///< as the dimension shows it, such as "d1=13"
    KdDbObjectId variable; ///< null: to be found by what the owners say
    bool reference = false;
};

/// Makes a dimension the face of a dimensional constraint.
class KW_EXPORT KdDbAssocDimDependencyBodyBase : public KdDbAssocDependencyBody
{
    KD_RX_DECLARE(KdDbAssocDimDependencyBodyBase)
    KD_DB_MEMBERS(AssocDimDependencyBodyMembers)

    const KdString& entityText() const { return data().text; }
    /// True if the constraint only tells a value and forces nothing. Drawing files do not say so.
    bool isReference() const { return data().reference; }
    /// The `KdDbAssocVariable` that holds the value; the null id if it is not to be found.
    KdDbObjectId variable() const;
};

class KW_EXPORT KdDbAssocDimDependencyBody : public KdDbAssocDimDependencyBodyBase
{
    KD_RX_DECLARE(KdDbAssocDimDependencyBody)
};

struct KW_EXPORT DimAssocMembers : ObjectMembers
{
    KdDbObjectId dimension;
    int points = 0; ///< a bit for each of up to four points of the dimension that is tied
};

/// Ties points of a dimension or leader to other entities. Stands in the extension dictionary of
/// the dimension as "ACAD_DIMASSOC".
class KW_EXPORT KdDbDimAssoc : public KdDbObject
{
    KD_RX_DECLARE(KdDbDimAssoc)
    KD_DB_MEMBERS(DimAssocMembers)

    KdDbObjectId dimObjId() const { return data().dimension; }
    int associativePoints() const { return data().points; }
};

/// True if what `object`, a dimension or leader, measures is tied to other entities.
KW_EXPORT bool kddbIsAssociativeDimension(const KdDbObject& object);
