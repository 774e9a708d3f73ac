/// Images, and the blank areas that work like them.
#pragma once

#include <entities/declare.h>
#include <entities/image_definition.h>

struct KW_EXPORT RasterImageMembers : EntityMembers
{
    KdGePoint3d origin;                   ///< WCS, lower left corner
    KdGeVector3d pixelU{1.0, 0.0, 0.0};   ///< WCS, along the lower edge of one pixel
    KdGeVector3d pixelV{0.0, 1.0, 0.0};   ///< WCS, along its left edge
    KdGeVector2d size{1.0, 1.0};          ///< pixels
    KdDbObjectId definition;              ///< null for a wipeout
    std::vector<KdGePoint2d> clipPolygon; ///< pixels from the upper left corner, y downwards, the
                                          ///< middle of the first pixel being the origin
    std::uint8_t displayOptions = 0;
    bool clipped = false;
    bool clipIsRectangle = true; ///< then the polygon holds two opposite corners
    bool clipIsInverted = false; ///< what lies outside is shown
    std::int8_t brightness = 50; ///< 0 to 100, like the two below
    std::int8_t contrast = 50;
    std::int8_t fade = 0;
};

/// Base of all images.
KD_DB_PLAIN_ENTITY(KdDbImage, KdDbEntity)

class KW_EXPORT KdDbRasterImage : public KdDbImage
{
    KD_RX_DECLARE(KdDbRasterImage)
    KD_DB_MEMBERS(RasterImageMembers)

    /// The numbers are those of drawing files.
    enum ImageDisplayOpt
    {
        kShow = 1,
        kShowUnAligned = 2, ///< also when turned against the screen
        kClip = 4,
        kTransparent = 8,
    };

    /// A `KdDbRasterImageDef`; the null id for a wipeout.
    KdDbObjectId imageDefId() const { return data().definition; }
    /// Where the image lies, in WCS: its lower left corner, and its lower and left edges as
    /// vectors.
    void getOrientation(KdGePoint3d& origin, KdGeVector3d& u, KdGeVector3d& v) const;
    /// In pixels.
    KdGeVector2d imageSize() const { return data().size; }
    bool isSetDisplayOpt(ImageDisplayOpt option) const { return data().displayOptions & option; }
    /// 0 to 100.
    std::int8_t brightness() const { return data().brightness; }
    std::int8_t contrast() const { return data().contrast; }
    std::int8_t fade() const { return data().fade; }
    bool isClipped() const { return data().clipped; }
    /// True if what lies outside the clipping edge is shown, and not what lies inside.
    bool isClipInverted() const { return data().clipIsInverted; }

    /// The clipping edge, or the edge of the image where it is not clipped.
    KdErrorStatus getOutline(KdArray<KdGePoint3d>& points) const override;
    /// Of the outline.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;

  private:
    KdGePoint3d worldOf(const KdGePoint2d& pixel) const;
};

/// An area that hides what lies below.
class KW_EXPORT KdDbWipeout : public KdDbRasterImage
{
    KD_RX_DECLARE(KdDbWipeout)
};
