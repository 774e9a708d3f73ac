/// Texts along an arc, and texts computed from an expression or a file.
#pragma once

#include <entities/declare.h>
#include <geometry/point.h>

namespace KdDb {
/// How letters fill an arc.
enum ArcTextAlignment : std::int16_t
{
    kArcFit = 1, ///< spread over all of it
    kArcLeft = 2,
    kArcRight = 3,
    kArcCenter = 4,
};
} // namespace KdDb

/// What makes up a text along an arc.
struct KW_EXPORT ArcTextData
{
    KdString text;
    KdString fontName;                  ///< of a shape font's file or a face; empty: the style's
    KdDbObjectId style;                 ///< a `KdDbTextStyleTableRecord`, or the null id
    KdGePoint3d center;                 ///< WCS
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length
    double radius = 0.0;
    double height = 0.0;
    double widthFactor = 1.0;
    double letterSpacing = 0.0; ///< free room between letters, drawing units
    double offset = 0.0;        ///< between the arc and the letters
    double leftOffset = 0.0;    ///< along the arc, before the first letter
    double rightOffset = 0.0;
    double startAngle = 0.0; ///< radians in the object frame, counter-clockwise to the end
    double endAngle = 0.0;
    KdDb::ArcTextAlignment alignment = KdDb::kArcFit;
    bool inward = false;  ///< letters have their tops to the centre
    bool concave = false; ///< letters stand inside the arc
    bool reversed = false;
    bool bold = false;
    bool italic = false;
    bool underlined = false;
};

struct KW_EXPORT ArcTextMembers : EntityMembers, ArcTextData
{
};

/// Letters along an arc.
class KW_EXPORT KdDbArcAlignedText : public KdDbEntity
{
    KD_RX_DECLARE(KdDbArcAlignedText)
    KD_DB_MEMBERS(ArcTextMembers)

    const ArcTextData& textData() const { return data(); }
};

struct KW_EXPORT RTextMembers : EntityMembers
{
    KdString text; ///< an expression or the name of a file
    KdDbObjectId style;
    KdGePoint3d position;               ///< WCS
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length
    double height = 0.0;
    double rotation = 0.0; ///< radians in the object frame
    bool expression = false;
};

/// A text that is computed whenever it is drawn; a drawing doesn't hold the outcome.
class KW_EXPORT KdDbRText : public KdDbEntity
{
    KD_RX_DECLARE(KdDbRText)
    KD_DB_MEMBERS(RTextMembers)

    /// The expression or the name of a file.
    const KdString& contents() const { return data().text; }
    bool isExpression() const { return data().expression; }
    /// In WCS: the left end of the base line.
    KdGePoint3d position() const { return data().position; }
    /// Of any length.
    KdGeVector3d normal() const { return data().normal; }
    double height() const { return data().height; }
    /// In radians, counter-clockwise about the normal from the x axis of the object frame.
    double rotation() const { return data().rotation; }
    /// A `KdDbTextStyleTableRecord`, or the null id.
    KdDbObjectId textStyle() const { return data().style; }
};
