/// What actions do, and the geometry that they work on.
#pragma once

#include <database/associativity.h>
#include <database/entity.h>

struct KW_EXPORT AssocActionBodyMembers : ObjectMembers
{
    std::vector<KdDbObjectId> parameters; ///< `KdDbAssocActionParam` objects
    std::vector<AssocValueParameter> values;
};

/// Base of what does an action's work. The action is its owner.
class KW_EXPORT KdDbAssocActionBody : public KdDbObject
{
    KD_RX_DECLARE(KdDbAssocActionBody)
    KD_DB_MEMBERS(AssocActionBodyMembers)

    const std::vector<KdDbObjectId>& parameters() const { return data().parameters; }
    KdDbObjectId parentAction() const { return ownerId(); }

    /// The body of the first action that an entity depends on or follows, if its class is
    /// `bodyClass` or derives from it; erased ones included. The null id if there is none.
    static KdDbObjectId controlling(const KdDbEntity& entity, const KdRxClass* bodyClass);
};

struct KW_EXPORT AssocActionParamMembers : ObjectMembers
{
    KdString name;
};

/// A piece of geometry that an action works on.
class KW_EXPORT KdDbAssocActionParam : public KdDbObject
{
    KD_RX_DECLARE(KdDbAssocActionParam)
    KD_DB_MEMBERS(AssocActionParamMembers)

    const KdString& name() const { return data().name; }
};

struct KW_EXPORT AssocVertexActionParamMembers : AssocActionParamMembers
{
    KdGePoint3d point; ///< WCS
};

class KW_EXPORT KdDbAssocVertexActionParam : public KdDbAssocActionParam
{
    KD_RX_DECLARE(KdDbAssocVertexActionParam)
    KD_DB_MEMBERS(AssocVertexActionParamMembers)

    KdGePoint3d point() const { return data().point; }
};
