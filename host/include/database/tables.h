/// The symbol tables of a drawing and their records, except blocks and dimension styles.
#pragma once

#include <database/color.h>
#include <database/symbol_table.h>
#include <geometry/point.h>

struct KW_EXPORT LayerMembers : SymbolTableRecordMembers
{
    KdDbObjectId linetype;
    KdDbObjectId plotStyle;
    KdDbObjectId material;
    KdString description;
    KdString colorName;               ///< "BOOK$COLOR", or a plain colour name
    std::uint32_t color = 0xC3000007; ///< the word of a `KdCmColor`
    std::uint32_t transparency = 0;
    std::int16_t lineweight = -3;
    bool frozen = false;
    bool frozenInNewViewports = false;
    bool off = false;
    bool locked = false;
    bool plottable = true;
};

class KW_EXPORT KdDbLayerTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbLayerTableRecord)
    KD_DB_MEMBERS(LayerMembers)

    bool isFrozen() const { return data().frozen; }
    bool isOff() const { return data().off; }
    bool isLocked() const { return data().locked; }
    bool isPlottable() const { return data().plottable; }
    KdCmColor color() const { return KdCmColor(data().color); }
    const KdString& colorName() const { return data().colorName; }
    KdCmTransparency transparency() const
    {
        return KdCmTransparency::fromWord(data().transparency);
    }
    const KdString& description() const { return data().description; }
    KdDbObjectId linetypeObjectId() const { return data().linetype; }
    KdDbObjectId plotStyleNameId() const { return data().plotStyle; }
    KdDbObjectId materialId() const { return data().material; }
    bool isFrozenInNewViewports() const { return data().frozenInNewViewports; }
    int lineWeight() const { return data().lineweight; }
};
KD_DB_SYMBOL_TABLE(KdDbLayerTable, KdDbLayerTableRecord)

struct KW_EXPORT LinetypeMembers : SymbolTableRecordMembers
{
    KdString comments;
    double patternLength = 0.0;
    std::vector<double> dashes; ///< drawing units; negative for a gap, 0 for a dot
};

class KW_EXPORT KdDbLinetypeTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbLinetypeTableRecord)
    KD_DB_MEMBERS(LinetypeMembers)

    const KdString& comments() const { return data().comments; }
    double patternLength() const { return data().patternLength; }
    const std::vector<double>& dashes() const { return data().dashes; }
};
KD_DB_SYMBOL_TABLE(KdDbLinetypeTable, KdDbLinetypeTableRecord)

struct KW_EXPORT TextStyleMembers : SymbolTableRecordMembers
{
    KdString fileName;
    KdString bigFontFileName;
    KdString typeface;     ///< of a TrueType font; empty for a shape font
    double textSize = 0.0; ///< 0: each text has a height of its own
    double xScale = 1.0;
    double obliquingAngle = 0.0; ///< radians
    double priorSize = 0.0;      ///< the height that was used last
    bool shapeFile = false;
    bool vertical = false;
    bool backward = false;
    bool upsideDown = false;
    bool bold = false;   ///< of a TrueType font
    bool italic = false; ///< of a TrueType font
};

class KW_EXPORT KdDbTextStyleTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbTextStyleTableRecord)
    KD_DB_MEMBERS(TextStyleMembers)

    const KdString& fileName() const { return data().fileName; }
    const KdString& bigFontFileName() const { return data().bigFontFileName; }
    const KdString& typeface() const { return data().typeface; }
    double textSize() const { return data().textSize; }
    double priorSize() const { return data().priorSize; }
    double xScale() const { return data().xScale; }
    double obliquingAngle() const { return data().obliquingAngle; }
    bool isShapeFile() const { return data().shapeFile; }
    bool isVertical() const { return data().vertical; }
    bool isBackward() const { return data().backward; }
    bool isUpsideDown() const { return data().upsideDown; }
    bool isBold() const { return data().bold; }
    bool isItalic() const { return data().italic; }
};
KD_DB_SYMBOL_TABLE(KdDbTextStyleTable, KdDbTextStyleTableRecord)

/// A named coordinate system: `origin` and unit axes in world coordinates.
struct KW_EXPORT UCSMembers : SymbolTableRecordMembers
{
    KdGePoint3d origin;
    KdGeVector3d xAxis{1.0, 0.0, 0.0};
    KdGeVector3d yAxis{0.0, 1.0, 0.0};
};

class KW_EXPORT KdDbUCSTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbUCSTableRecord)
    KD_DB_MEMBERS(UCSMembers)

    KdGePoint3d origin() const { return data().origin; }
    KdGeVector3d xAxis() const { return data().xAxis; }
    KdGeVector3d yAxis() const { return data().yAxis; }
};
KD_DB_SYMBOL_TABLE(KdDbUCSTable, KdDbUCSTableRecord)

class KW_EXPORT KdDbRegAppTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbRegAppTableRecord)
};
KD_DB_SYMBOL_TABLE(KdDbRegAppTable, KdDbRegAppTableRecord)

/// A view of the model. Several may have one name; the first active one is current.
struct KW_EXPORT ViewportTableMembers : SymbolTableRecordMembers
{
    KdGePoint2d lowerLeft{0.0, 0.0}; ///< parts of the screen, 0 to 1
    KdGePoint2d upperRight{1.0, 1.0};
    KdGePoint2d center;                    ///< in the view's own plane
    KdGeVector3d direction{0.0, 0.0, 1.0}; ///< from the target to the eye, WCS
    KdGePoint3d target;                    ///< WCS
    double height = 1.0;                   ///< drawing units
    double aspectRatio = 1.0;              ///< width by height
    double lensLength = 50.0;              ///< mm
    double twist = 0.0;                    ///< radians
    KdGePoint3d ucsOrigin;                 ///< WCS
    KdGeVector3d ucsXAxis{1.0, 0.0, 0.0};
    KdGeVector3d ucsYAxis{0.0, 1.0, 0.0};
};

class KW_EXPORT KdDbViewportTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbViewportTableRecord)
    KD_DB_MEMBERS(ViewportTableMembers)

    /// All that is kept of the view.
    const ViewportTableMembers& view() const { return data(); }
};
KD_DB_SYMBOL_TABLE(KdDbViewportTable, KdDbViewportTableRecord)
