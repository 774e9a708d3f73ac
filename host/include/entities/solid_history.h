/// How solids were made.
#pragma once

#include <database/object.h>

struct KW_EXPORT SolidHistoryMembers : ObjectMembers
{
    bool show = false;
    bool record = false;
};

/// The root of a solid's history.
class KW_EXPORT KdDbShHistory : public KdDbObject
{
    KD_RX_DECLARE(KdDbShHistory)
    KD_DB_MEMBERS(SolidHistoryMembers)

    /// Whether the earlier forms are shown.
    bool showsHistory() const { return data().show; }
    /// Whether further changes are recorded.
    bool recordsHistory() const { return data().record; }
};
