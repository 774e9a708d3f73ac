/// Single-line texts.
#pragma once

#include <entities/declare.h>
#include <entities/extrusion.h>

namespace KdDb {
/// Which point of the text the alignment point is, along the line.
enum TextHorizontalMode : std::int16_t
{
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAligned = 3, ///< between two points, height fitted
    kTextMiddle = 4,
    kTextFit = 5, ///< between two points, width fitted
};
/// The same across the line.
enum TextVerticalMode : std::int16_t
{
    kTextBase = 0,
    kTextBottom = 1,
    kTextVerticalMiddle = 2,
    kTextTop = 3,
};
} // namespace KdDb

struct KW_EXPORT TextMembers : EntityMembers
{
    KdGePoint3d position;       ///< OCS, left end of the base line
    KdGePoint3d alignmentPoint; ///< OCS, unused while both modes are 0
    double height = 0.0;
    double rotation = 0.0; ///< radians in the object frame
    double oblique = 0.0;  ///< radians
    double widthFactor = 1.0;
    Extrusion extrusion;
    KdString text;
    KdDbObjectId style;
    KdDb::TextHorizontalMode horizontalMode = KdDb::kTextLeft;
    KdDb::TextVerticalMode verticalMode = KdDb::kTextBase;
    bool mirroredInX = false; ///< backward
    bool mirroredInY = false; ///< upside down
};

class KW_EXPORT KdDbText : public KdDbEntity
{
    KD_RX_DECLARE(KdDbText)
    KD_DB_MEMBERS(TextMembers)

    /// In WCS: the left end of the base line.
    KdGePoint3d position() const { return data().extrusion.toWorld(data().position); }
    /// In WCS: the point that the modes speak of. The origin for a text aligned by its position,
    /// unless the drawing gives another.
    KdGePoint3d alignmentPoint() const { return data().extrusion.toWorld(data().alignmentPoint); }
    /// The text with its `%%` codes.
    const KdString& textString() const { return data().text; }
    /// A `KdDbTextStyleTableRecord`; the null id if it is not there.
    KdDbObjectId textStyle() const { return data().style; }
    double height() const { return data().height; }
    /// In radians, counter-clockwise about the normal from the x axis of the object frame.
    double rotation() const { return data().rotation; }
    /// Slant of the letters in radians, to the right.
    double oblique() const { return data().oblique; }
    double widthFactor() const { return data().widthFactor; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    /// A damaged drawing may give numbers beyond the named modes.
    KdDb::TextHorizontalMode horizontalMode() const { return data().horizontalMode; }
    KdDb::TextVerticalMode verticalMode() const { return data().verticalMode; }
    /// Backward.
    bool isMirroredInX() const { return data().mirroredInX; }
    /// Upside down.
    bool isMirroredInY() const { return data().mirroredInY; }

    /// What stands in the drawing, codes included. Here: the text itself.
    virtual const KdString& shownText() const { return textString(); }

    /// The box around the letters as they are placed, their widths taken from a plain font, since a
    /// drawing does not hold its fonts. A text without letters has none.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
