/// The styles of multilines.
#pragma once

#include <vector>

#include <database/color.h>
#include <database/object.h>

struct KW_EXPORT MlineStyleMembers : ObjectMembers
{
    KdString name;
    KdString description;
    /// Of the lines from the path at scale 1, above 0 to its left.
    std::vector<double> offsets;
    std::vector<std::uint32_t> colors; ///< of the lines, words of a `KdCmColor`; missing: by layer
    std::vector<KdDbObjectId> linetypes; ///< of the lines; missing, or null: by layer
    double startAngle = 0.0;             ///< radians, of the caps against the path
    double endAngle = 0.0;
    std::uint32_t fillColor = 0xC0000000;
    int flags = 0;
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

    /// Bits of `flags`, the same as in drawing files.
    enum Flag : int
    {
        kFilled = 1,
        kShowsMiters = 2,
        kStartSquareCap = 16,
        kStartInnerArcs = 32,
        kStartRoundCap = 64,
        kEndSquareCap = 256,
        kEndInnerArcs = 512,
        kEndRoundCap = 1024,
    };
    bool has(Flag flag) const { return (data().flags & flag) != 0; }
    /// Of the ends against the path, in radians; a right angle for straight ends.
    double startAngle() const { return data().startAngle; }
    double endAngle() const { return data().endAngle; }
    KdCmColor fillColor() const { return KdCmColor(data().fillColor); }
    /// Of a line, counted from 0.
    KdCmColor colorOf(std::size_t line) const;
    KdDbObjectId linetypeOf(std::size_t line) const;
};
