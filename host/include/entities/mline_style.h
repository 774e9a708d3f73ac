/// The styles of multilines.
#pragma once

#include <vector>

#include <database/object.h>

struct KW_EXPORT MlineStyleMembers : ObjectMembers
{
    KdString name;
    KdString description;
    std::vector<double> offsets; ///< of the lines from the path, at scale 1
};

class KW_EXPORT KdDbMlineStyle : public KdDbObject
{
    KD_RX_DECLARE(KdDbMlineStyle)
    KD_DB_MEMBERS(MlineStyleMembers)

    /// The dictionary of a drawing's multiline styles; the null id if there is none.
    static KdDbObjectId styleDictionary(const KdDbDatabase& database);

    /// The name that the style itself bears; the dictionary's key is the one that counts.
    const KdString& name() const { return data().name; }
    const KdString& description() const { return data().description; }
    const std::vector<double>& offsets() const { return data().offsets; }
};
