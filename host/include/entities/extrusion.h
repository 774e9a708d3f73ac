/// What flat entities share: the plane that they lie in, and how far they are drawn out of it.
#pragma once

#include <geometry/matrix.h>
#include <runtime/kd_rare.h>

/// A flat entity's direction of extrusion. It also fixes the entity's object frame (OCS): the frame
/// about the world's origin whose z axis is the direction and whose x axis follows the arbitrary
/// axis rule.
class KW_EXPORT Extrusion
{
  public:
    Extrusion() = default;
    Extrusion(const KdGeVector3d& direction, double thickness)
    {
        setDirection(direction);
        setThickness(thickness);
    }

    /// WCS, of any length; the world's Z until it is set.
    const KdGeVector3d& direction() const { return m_values->direction; }
    void setDirection(const KdGeVector3d& direction)
    {
        m_values.set(&Values::direction, direction);
    }
    /// Along the direction, may be negative; 0 until it is set.
    double thickness() const { return m_values->thickness; }
    void setThickness(double thickness) { m_values.set(&Values::thickness, thickness); }

    /// The direction with length 1; the world's Z for a direction of no length.
    KdGeVector3d normal() const;
    /// The thickness as a vector in WCS.
    KdGeVector3d sweep() const { return normal() * thickness(); }
    /// From the object frame to the world.
    KdGePoint3d toWorld(const KdGePoint3d& point) const;
    KdGeMatrix3d frame() const { return KdGeMatrix3d::planeToWorld(normal()); }

  private:
    struct Values
    {
        KdGeVector3d direction{0.0, 0.0, 1.0};
        double thickness = 0.0;
    };
    KdRare<Values> m_values;
};
