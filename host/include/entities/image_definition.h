/// The files behind images.
#pragma once

#include <database/object.h>
#include <geometry/point.h>

struct KW_EXPORT RasterImageDefMembers : ObjectMembers
{
    /// The unit in which a file states the size of its pixels; the numbers are those of drawings.
    enum class ResolutionUnit : std::int16_t
    {
        None = 0,
        Centimeter = 2,
        Inch = 5,
    };

    KdString sourceFileName;
    KdGeVector2d size;      ///< pixels
    KdGeVector2d pixelSize; ///< millimetres where there is a unit, else as parts of the width
    ResolutionUnit unit = ResolutionUnit::None;
    bool loaded = true;
};

/// One image file, shown by any number of images.
class KW_EXPORT KdDbRasterImageDef : public KdDbObject
{
    KD_RX_DECLARE(KdDbRasterImageDef)
    KD_DB_MEMBERS(RasterImageDefMembers)

    /// The dictionary of a drawing's image definitions; the null id if there is none.
    static KdDbObjectId imageDictionary(const KdDbDatabase& database);

    /// The path as the drawing has it.
    const KdString& sourceFileName() const { return data().sourceFileName; }
    /// In pixels.
    KdGeVector2d size() const { return data().size; }
    /// Width and height of a pixel in millimetres, if the file states a unit.
    KdGeVector2d resolutionMMPerPixel() const { return data().pixelSize; }
    RasterImageDefMembers::ResolutionUnit resolutionUnits() const { return data().unit; }
    bool isLoaded() const { return data().loaded; }
};
