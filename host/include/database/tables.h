/// The symbol tables of a drawing and their records, except blocks and dimension styles.
#pragma once

#include <database/color.h>
#include <database/symbol_table.h>
#include <geometry/point.h>

struct KW_EXPORT LayerMembers : SymbolTableRecordMembers
{
    KdDbObjectId linetype;
    KdDbObjectId plotStyle;
    std::uint32_t color = 0xC3000007; ///< the word of a `KdCmColor`
    std::uint32_t transparency = 0;
    std::int16_t lineweight = -3;
    bool frozen = false;
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
    KdDbObjectId linetypeObjectId() const { return data().linetype; }
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
    double textSize = 0.0; ///< 0: each text has a height of its own
    double xScale = 1.0;
    double obliquingAngle = 0.0; ///< radians
    bool shapeFile = false;
    bool vertical = false;
};

class KW_EXPORT KdDbTextStyleTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbTextStyleTableRecord)
    KD_DB_MEMBERS(TextStyleMembers)

    const KdString& fileName() const { return data().fileName; }
    double textSize() const { return data().textSize; }
    double xScale() const { return data().xScale; }
    double obliquingAngle() const { return data().obliquingAngle; }
    bool isShapeFile() const { return data().shapeFile; }
    bool isVertical() const { return data().vertical; }
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

class KW_EXPORT KdDbViewportTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbViewportTableRecord)
};
KD_DB_SYMBOL_TABLE(KdDbViewportTable, KdDbViewportTableRecord)
