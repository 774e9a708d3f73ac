/// Hatches, and polygons filled like them.
#pragma once

#include <variant>
#include <vector>

#include <entities/declare.h>
#include <entities/extrusion.h>

/// Edges of a boundary, in OCS.
struct HatchLineEdge
{
    KdGePoint2d start;
    KdGePoint2d end;
};

/// A piece of an ellipse or, with ratio 1, of a circle. It runs from the start to the end
/// parameter, clockwise if the end is the lower one. A parameter is 0 at the end of the major axis.
struct HatchArcEdge
{
    KdGePoint2d center;
    KdGeVector2d majorAxis; ///< from the center to the end of the axis
    double radiusRatio = 1.0;
    double startParam = 0.0;
    double endParam = 0.0;
};

struct KW_EXPORT HatchSplineEdge
{
    int degree = 0;
    std::vector<double> knots;
    std::vector<KdGePoint2d> controlPoints;
    std::vector<double> weights; ///< one for each control point, or none where all are 1
    std::vector<KdGePoint2d> fitPoints;
};

using HatchEdge = std::variant<HatchLineEdge, HatchArcEdge, HatchSplineEdge>;

/// A corner and the bulge of the side that begins there: the tangent of a quarter of the angle of
/// its arc, above 0 if counter-clockwise, 0 for a straight side.
struct HatchVertex
{
    KdGePoint2d point; ///< OCS
    double bulge = 0.0;
};

/// One closed line of a boundary: corners, or edges one after the other.
struct KW_EXPORT HatchLoop
{
    /// Bits of `type`.
    enum Type : int
    {
        kExternal = 1,
        kPolyline = 2,
        kDerived = 4,
        kTextBox = 8,
        kOutermost = 16,
    };

    int type = 0;
    std::vector<HatchVertex> vertices; ///< of a polyline; the last side leads to the first corner
    std::vector<HatchEdge> edges;      ///< of any other loop
    std::vector<KdDbObjectId> sources; ///< the entities that it came from

    bool isPolyline() const { return (type & kPolyline) != 0; }
    bool isTextBox() const { return (type & kTextBox) != 0; }
};

/// A family of parallel lines of a pattern, in OCS, scaled and turned as it is drawn.
struct KW_EXPORT HatchPatternLine
{
    double angle = 0.0;         ///< radians
    KdGePoint2d base;           ///< a point of the first line, where its dashes begin
    KdGeVector2d offset;        ///< from one line to the next
    std::vector<double> dashes; ///< above 0 drawn, below 0 left out, 0 a dot; none: without breaks
};

/// What a hatch shows, apart from what all entities have.
struct KW_EXPORT HatchContent
{
    enum class Style : std::int16_t
    {
        Normal = 0, ///< each second loop is a hole
        Outer = 1,  ///< only between the outermost loops and those next to them
        Ignore = 2, ///< all inside the outermost loops
    };
    enum PatternType : std::int16_t
    {
        kUserDefined = 0,
        kPreDefined = 1,
        kCustomDefined = 2,
    };

    Extrusion extrusion;
    double elevation = 0.0; ///< OCS
    KdGePoint2d origin;     ///< OCS, where the pattern begins
    std::vector<HatchLoop> loops;
    std::vector<KdGePoint2d> seeds; ///< OCS
    Style style = Style::Normal;
    bool associative = false;

    bool solid = false;
    bool doubled = false; ///< a user-defined pattern has a second family across the first
    std::int16_t patternType = kPreDefined;
    KdString patternName;
    double patternAngle = 0.0; ///< radians
    double patternScale = 1.0; ///< of a pattern that is not user-defined
    double patternSpace = 1.0; ///< between the lines of a user-defined pattern
    std::vector<HatchPatternLine> patternLines;

    bool gradient = false;
    bool oneColorGradient = false;
    KdString gradientName;
    double gradientAngle = 0.0; ///< radians
    float gradientShift = 0.0F;
    float gradientTint = 0.0F; ///< of a gradient of one colour
    std::vector<KdCmColor> gradientColors;
    std::vector<float> gradientValues; ///< where each colour stands, from 0 to 1
};

/// The loops around each area that the style leaves filled, by their places in `loops`: the outer
/// one first, then the holes in it. Loops without size are missing.
KW_EXPORT std::vector<std::vector<std::size_t>> kddbFilledLoops(const HatchContent& hatch);
/// The lines of a pattern as far as they lie inside, family by family, in OCS.
/// @param most   more lines are not made
/// @param lines  untouched on failure
/// @return       `eNotApplicable` without loops or without a pattern, `eOutOfRange` if there would
///               be more lines
KW_EXPORT KdErrorStatus kddbPatternLines(const HatchContent& hatch, std::size_t most,
                                         std::vector<HatchLineEdge>& lines);

struct KW_EXPORT HatchMembers : EntityMembers, HatchContent
{
};

class KW_EXPORT KdDbHatch : public KdDbEntity
{
    KD_RX_DECLARE(KdDbHatch)
    KD_DB_MEMBERS(HatchMembers)

    /// All that the hatch shows.
    const HatchContent& content() const { return data(); }
    /// Along the normal, in OCS.
    double elevation() const { return data().elevation; }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    /// In OCS, where the pattern begins.
    KdGePoint2d originPoint() const { return data().origin; }
    HatchContent::Style hatchStyle() const { return data().style; }
    bool associative() const { return data().associative; }
    /// True if the hatch is filled with a pattern, also with the solid one; false for a gradient.
    bool isHatch() const { return !data().gradient; }
    bool isGradient() const { return data().gradient; }
    bool isSolidFill() const { return data().solid; }
    int numLoops() const { return static_cast<int>(data().loops.size()); }

    /// See `HatchContent::PatternType`; a damaged drawing may give other numbers.
    int patternType() const { return data().patternType; }
    const KdString& patternName() const { return data().patternName; }
    /// In radians, counter-clockwise from the x axis of the object frame.
    double patternAngle() const { return data().patternAngle; }
    double patternScale() const { return data().patternScale; }
    /// The distance of the lines of a user-defined pattern, in drawing units; 1 for others, whose
    /// spacing drawings do not tell.
    double patternSpace() const { return data().patternSpace; }
    bool patternDouble() const { return data().doubled; }

    const KdString& gradientName() const { return data().gradientName; }
    /// In radians.
    double gradientAngle() const { return data().gradientAngle; }
    float gradientShift() const { return data().gradientShift; }
    bool gradientOneColorMode() const { return data().oneColorGradient; }
    /// The colours, and from 0 to 1 where each stands. They belong to the hatch and are valid until
    /// it changes. Without colours `count` is 0 and both pointers are null.
    KdErrorStatus getGradientColors(unsigned& count, const KdCmColor*& colors,
                                    const float*& values) const;

    /// The area that the style leaves filled, in square drawing units. Loops may run either way
    /// round; a text box is never filled unless the style ignores it. `eNotApplicable` for a hatch
    /// without loops, `area` untouched.
    KdErrorStatus getArea(double& area) const;
    /// The box around all loops.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
    bool isPlanar() const override { return true; }

    // The following change the hatch, which must be open for write or not yet in a database.

    /// Takes over all that another hatch shows and its general properties; its place in the drawing
    /// and its extended data stay. `eNotThatKindOfClass` for what is no hatch.
    KdErrorStatus copyFrom(const KdRxObject* other) override;
    /// Fills with a pattern by its name, in any case, in place of a pattern or gradient. For
    /// user-defined patterns the name is free; of the others "SOLID" and "LINE" are known, and any
    /// other name is `eKeyNotFound`. A failed call changes nothing.
    KdErrorStatus setPattern(int type, const wchar_t* name);
    /// Changes the size of the pattern; `eInvalidInput` unless `scale` is above 0.
    KdErrorStatus setPatternScale(double scale);

    /// Tells if the hatch can be drawn: `eNotApplicable` without loops or without a pattern,
    /// `eOutOfRange` if it would take more than a million lines.
    /// @param estimate  counts the lines across the whole box, without cutting them
    KdErrorStatus evaluateHatch(bool estimate) const;
    /// Takes the hatch apart. A solid or gradient gives a hatch for each connected area, with the
    /// holes in it; a pattern gives its lines, family by family, each family from one side to the
    /// other, as far as they lie inside. They have this hatch's general properties.
    /// @param pieces  receives new entities at its end, owned by the caller; untouched on failure
    /// @return        as `evaluateHatch(false)`
    KdErrorStatus explode(KdArray<KdDbEntity*>& pieces) const;
};

/// A polygon with holes, and what it is filled with.
class KW_EXPORT KdDbMPolygon : public KdDbEntity
{
    KD_RX_DECLARE(KdDbMPolygon)
    KD_DB_MEMBERS(HatchMembers)

    /// Its edges and all that fills it; all loops are polylines.
    const HatchContent& content() const { return data(); }
};
