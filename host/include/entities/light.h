/// Lights.
#pragma once

#include <entities/declare.h>
#include <geometry/point.h>

struct KW_EXPORT LightMembers : EntityMembers
{
    KdString name;
    KdGePoint3d position; ///< WCS
    KdGePoint3d target;   ///< WCS
    double intensity = 1.0;
    double hotspotAngle = 0.0;             ///< radians
    double falloffAngle = 0.0;             ///< radians
    std::uint32_t lightColor = 0xC3000007; ///< the word of a `KdCmColor`
    std::int16_t type = 1;
    bool on = true;
};

class KW_EXPORT KdDbLight : public KdDbEntity
{
    KD_RX_DECLARE(KdDbLight)
    KD_DB_MEMBERS(LightMembers)

    /// The numbers are those of drawing files.
    enum LightType
    {
        kDistant = 1,
        kPoint = 2,
        kSpot = 3,
    };

    const KdString& name() const { return data().name; }
    /// A `LightType`, or what else a damaged drawing holds.
    int lightType() const { return data().type; }
    bool isOn() const { return data().on; }
    double intensity() const { return data().intensity; }
    /// The colour of the light, not that in which its sign is drawn.
    KdCmColor lightColor() const { return KdCmColor(data().lightColor); }
    /// In WCS.
    KdGePoint3d position() const { return data().position; }
    KdGePoint3d targetLocation() const { return data().target; }
    /// Width of a spot's cone of full brightness, in radians.
    double hotspotAngle() const { return data().hotspotAngle; }
    /// Width of a spot's whole cone, in radians.
    double falloffAngle() const { return data().falloffAngle; }
};
