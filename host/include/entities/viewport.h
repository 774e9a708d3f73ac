/// Windows of a sheet that show the model.
#pragma once

#include <vector>

#include <entities/declare.h>
#include <geometry/point.h>

/// Lengths in units of the sheet, unless stated otherwise.
struct KW_EXPORT ViewportMembers : EntityMembers
{
    KdGePoint3d center; ///< WCS
    double width = 0.0;
    double height = 0.0;
    double viewHeight = 0.0; ///< of what is shown, in units of the model; 0: not known
    KdGePoint2d viewCenter;  ///< in the plane of the view, units of the model
    KdGeVector3d viewDirection{0.0, 0.0, 1.0}; ///< WCS of the model, from the target to the eye
    KdGePoint3d viewTarget;                    ///< WCS of the model, origin of the view's plane
    double twist = 0.0;                        ///< radians
    std::vector<KdDbObjectId> frozenLayers;    ///< in this viewport alone
    KdDbObjectId clipEntity;
    /// 1 for the sheet itself, also in a layout that was never active and numbers none of its
    /// viewports.
    std::int16_t number = 0;
    std::int16_t shadePlot = 0;
    bool on = true;
    bool locked = false;
    bool ucsPerViewport = false;
    bool perspective = false;
    bool scaledToFit = false; ///< set by a call; no drawing tells it
};

class KW_EXPORT KdDbViewport : public KdDbEntity
{
    KD_RX_DECLARE(KdDbViewport)
    KD_DB_MEMBERS(ViewportMembers)

    /// The numbers of the standard scales, sheet to model.
    enum StandardScaleType : std::int32_t
    {
        kScaleToFit = 0,
        kCustomScale = 1, ///< none of the others
        k1_1 = 2,
        k1_2 = 3,
        k1_4 = 4,
        k1_5 = 5,
        k1_8 = 6,
        k1_10 = 7,
        k1_16 = 8,
        k1_20 = 9,
        k1_30 = 10,
        k1_40 = 11,
        k1_50 = 12,
        k1_100 = 13,
        k2_1 = 14,
        k4_1 = 15,
        k8_1 = 16,
        k10_1 = 17,
        k100_1 = 18,
        k1_128in_1ft = 19,
        k1_64in_1ft = 20,
        k1_32in_1ft = 21,
        k1_16in_1ft = 22,
        k3_32in_1ft = 23,
        k1_8in_1ft = 24,
        k3_16in_1ft = 25,
        k1_4in_1ft = 26,
        k3_8in_1ft = 27,
        k1_2in_1ft = 28,
        k3_4in_1ft = 29,
        k1in_1ft = 30,
        k1and1_2in_1ft = 31,
        k3in_1ft = 32,
        k6in_1ft = 33,
        k1ft_1ft = 34,
    };

    /// The number inside the layout. 1 is the viewport that shows the sheet itself; the others of a
    /// layout that was never active may all have 0.
    std::int16_t number() const { return data().number; }
    bool isOn() const { return data().on; }
    /// True if zooming and panning inside are off.
    bool isLocked() const { return data().locked; }
    /// True if the viewport has a user coordinate system of its own.
    bool isUcsSavedWithViewport() const { return data().ucsPerViewport; }
    /// The closed curve that the window is cut along; the null id for a rectangular one.
    KdDbObjectId nonRectClipEntityId() const { return data().clipEntity; }
    /// In WCS.
    KdGePoint3d centerPoint() const { return data().center; }
    double width() const { return data().width; }
    double height() const { return data().height; }
    /// What stands in the middle of the window: a point of the view's plane, in units of the model.
    /// The plane has its origin in the target and lies across the direction; its axes are those of
    /// the object frame of the direction, turned back by the twist.
    KdGePoint2d viewCenter() const { return data().viewCenter; }
    /// The height of what is shown, in units of the model; 0 if the drawing does not tell.
    double viewHeight() const { return data().viewHeight; }
    /// From the target to the eye, in WCS of the model; of any length.
    KdGeVector3d viewDirection() const { return data().viewDirection; }
    /// In WCS of the model.
    KdGePoint3d viewTarget() const { return data().viewTarget; }
    /// In radians: how far the view is turned clockwise, so what is shown counter-clockwise.
    double twistAngle() const { return data().twist; }
    bool isPerspectiveOn() const { return data().perspective; }
    /// The layers that are frozen in this viewport alone.
    const std::vector<KdDbObjectId>& frozenLayers() const { return data().frozenLayers; }
    /// How it is shaded in print: 0 as displayed, 1 wireframe, 2 hidden, 3 rendered, 4 by a visual
    /// style, 5 by a preset. A damaged drawing may give other numbers.
    int shadePlot() const { return data().shadePlot; }

    /// Lengths on the sheet by lengths in the model; 0 if the drawing does not tell.
    double customScale() const;
    /// The standard scale that the custom scale is, of several the one with the lowest number.
    StandardScaleType standardScale() const;
    /// Changes what is shown so that it has the scale. The viewport must be open for write or not
    /// yet in a database. `kCustomScale` leaves the scale as it is. `eNotApplicable`, nothing
    /// changed, for `kScaleToFit` in a drawing whose model is empty or not known; `eInvalidInput`
    /// for a number that is no scale.
    KdErrorStatus setStandardScale(StandardScaleType type);

    /// The box around the window, whatever its clip curve.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
    bool isPlanar() const override { return true; }
};
