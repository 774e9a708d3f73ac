/// Free records: whatever an application keeps in a drawing.
#pragma once

#include <database/object.h>

struct KW_EXPORT XrecordMembers : ObjectMembers
{
    ResbufChain groups;
    std::int16_t cloning = 1; ///< what becomes of the record when a copy meets one of its name
};

/// A row of groups of any codes, kept in their order. Points take one record each, handles are
/// texts.
class KW_EXPORT KdDbXrecord : public KdDbObject
{
    KD_RX_DECLARE(KdDbXrecord)
    KD_DB_MEMBERS(XrecordMembers)

    /// The first group, or null if there is none. The chain belongs to the record.
    const resbuf* groups() const { return data().groups.get(); }
    int mergeStyle() const { return data().cloning; }
};
