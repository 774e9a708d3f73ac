/// Entities of kinds that are not known here.
#pragma once

#include <entities/declare.h>

struct KW_EXPORT ProxyEntityMembers : EntityMembers
{
    KdString originalDxfName;
};

/// Stands for an entity that only the application that made it understands.
class KW_EXPORT KdDbProxyEntity : public KdDbEntity
{
    KD_RX_DECLARE(KdDbProxyEntity)
    KD_DB_MEMBERS(ProxyEntityMembers)

    /// The name that the entity's kind has, or had, in drawing files; empty if it is lost.
    const KdString& originalDxfName() const { return data().originalDxfName; }
};
