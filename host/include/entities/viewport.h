/// Windows of a sheet that show the model.
#pragma once

#include <entities/declare.h>
#include <geometry/point.h>

/// All lengths in units of the sheet.
struct KW_EXPORT ViewportMembers : EntityMembers
{
    KdGePoint3d center; ///< WCS
    double width = 0.0;
    double height = 0.0;
    KdDbObjectId clipEntity;
    /// 1 for the sheet itself, also in a layout that was never active and numbers none of its
    /// viewports.
    std::int16_t number = 0;
    bool on = true;
};

class KW_EXPORT KdDbViewport : public KdDbEntity
{
    KD_RX_DECLARE(KdDbViewport)
    KD_DB_MEMBERS(ViewportMembers)

    /// The number inside the layout. 1 is the viewport that shows the sheet itself; the others of a
    /// layout that was never active may all have 0.
    std::int16_t number() const { return data().number; }
    bool isOn() const { return data().on; }
    /// The closed curve that the window is cut along; the null id for a rectangular one.
    KdDbObjectId nonRectClipEntityId() const { return data().clipEntity; }
    /// In WCS.
    KdGePoint3d centerPoint() const { return data().center; }
    double width() const { return data().width; }
    double height() const { return data().height; }
};
