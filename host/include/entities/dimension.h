/// The base of all dimensions.
#pragma once

#include <database/dimension_style.h>
#include <entities/declare.h>
#include <entities/extrusion.h>

struct KW_EXPORT DimensionMembers : EntityMembers
{
    DimensionStyleUse dimension;
    KdDbObjectId block;        ///< that draws the dimension
    KdGePoint3d textPosition;  ///< OCS, the middle of the text
    double textRotation = 0.0; ///< radians, against the direction that the style gives
    /// Radians, clockwise in the object frame: where the x axis of the user lay when the dimension
    /// was made.
    double horizontalRotation = 0.0;
    Extrusion extrusion; ///< the thickness stays 0
    KdString text;       ///< in place of the measurement; empty or "<>" stand for it
};

/// Shows a length or an angle. `dimasz()` and its like give the variables that count: those that
/// the dimension sets apart, else those of its style. Points are in WCS unless told otherwise.
class KW_EXPORT KdDbDimension : public KdDbEntity
{
    KD_RX_DECLARE(KdDbDimension)
    KD_DB_MEMBERS(DimensionMembers)
    KD_DB_USES_DIMENSION_STYLE

    bool isPlanar() const override;

    /// Of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    KdGePoint3d textPosition() const { return data().extrusion.toWorld(data().textPosition); }
    /// In radians, counter-clockwise about the normal.
    double textRotation() const { return data().textRotation; }
    double horizontalRotation() const { return data().horizontalRotation; }
    /// The text that a person has set; empty or "<>" where the measurement is shown.
    const KdString& dimensionText() const { return data().text; }
    KdDbObjectId dimBlockId() const { return data().block; }

    /// The box around what its block draws, block references in it by the boxes of their contents.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;

    /// What the dimension measures, from its points: a length in drawing units times DIMLFAC, of
    /// which a negative one counts on sheets alone, or an angle in radians. `eInvalidInput`,
    /// `value` untouched, where the points give none.
    KdErrorStatus measurement(double& value) const;

    /// True if the dimension is the face of a dimensional constraint.
    bool isConstraintObject() const;
    /// The same, and what kind of constraint; both outputs are false for a plain dimension.
    /// @param hasExpression  the value follows from an expression and is no plain number
    /// @param isReference    the constraint tells a value and forces nothing
    bool isConstraintObject(bool& hasExpression, bool& isReference) const;
    /// True for a constraint that is shown in a fixed size and not plotted; such ones stand on a
    /// layer of their own.
    bool isConstraintDynamic() const;

  protected:
    /// The measurement of the kind, before any factor; see `measurement`.
    virtual KdErrorStatus measure(double& value) const = 0;
    /// True if that is an angle. Here: false.
    virtual bool measuresAngle() const;

  private:
    double lengthFactor() const;
};
