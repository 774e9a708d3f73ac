/// Texts of several lines.
#pragma once

#include <vector>

#include <entities/declare.h>
#include <geometry/extents.h>

namespace KdDb {
/// Which point of the text its location is, by rows from the top left.
enum MTextAttachment : std::int16_t
{
    kTopLeft = 1,
    kTopCenter = 2,
    kTopRight = 3,
    kMiddleLeft = 4,
    kMiddleCenter = 5,
    kMiddleRight = 6,
    kBottomLeft = 7,
    kBottomCenter = 8,
    kBottomRight = 9,
};
enum MTextFlow : std::int16_t
{
    kLeftToRight = 1,
    kTopToBottom = 3,
    kFlowByStyle = 5,
};
enum LineSpacingStyle : std::int16_t
{
    kAtLeast = 1, ///< lines with larger letters move apart
    kExactly = 2,
};
enum MTextColumnType : std::int16_t
{
    kNoColumns = 0,
    kStaticColumns = 1,
    kDynamicColumns = 2,
};
} // namespace KdDb

/// What makes up a text of several lines, be it an entity or a part of one.
struct KW_EXPORT MTextData
{
    struct Columns
    {
        KdDb::MTextColumnType type = KdDb::kNoColumns;
        std::int16_t count = 0;
        double width = 0.0;
        double gutter = 0.0;
        std::vector<double> heights; ///< where columns have their own; 0: as high as need be
    };

    KdString contents;                  ///< with format codes
    KdGePoint3d location;               ///< WCS
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length
    /// WCS, of any length: along the lines. Without length: along the x axis of the object frame.
    KdGeVector3d direction;
    double textHeight = 0.0;
    double width = 0.0;       ///< at which lines are broken; 0: never
    double height = 0.0;      ///< of a column; 0 where none is defined
    double actualWidth = 0.0; ///< of the letters as they were last drawn; 0 where it is not known
    double actualHeight = 0.0;
    double lineSpacingFactor = 1.0;
    double fillFactor = 1.5; ///< size of the filled ground, in text heights
    Columns columns;
    KdDbObjectId style;
    std::uint32_t fillColor = 0xC0000000; ///< the word of a `KdCmColor`
    KdString fillColorName;
    KdDb::MTextAttachment attachment = KdDb::kTopLeft;
    KdDb::MTextFlow flow = KdDb::kLeftToRight;
    KdDb::LineSpacingStyle lineSpacingStyle = KdDb::kAtLeast;
    bool fill = false;
    bool fillWithBackground = false; ///< with the colour of the drawing's ground
    bool frame = false;
};

struct KW_EXPORT MTextMembers : EntityMembers, MTextData
{
};

class KW_EXPORT KdDbMText : public KdDbEntity
{
    KD_RX_DECLARE(KdDbMText)
    KD_DB_MEMBERS(MTextMembers)

    /// All that makes up the text, as a text inside another entity has it.
    const MTextData& textData() const { return data(); }
    /// Gives the text with its format codes. Always succeeds.
    KdErrorStatus contents(KdString& text) const;
    /// The text as it reads: without format codes, its paragraphs separated by line feeds.
    KdString text() const;
    /// In WCS: the point that the attachment speaks of.
    KdGePoint3d location() const { return data().location; }
    /// In WCS, of length 1.
    KdGeVector3d normal() const;
    /// In WCS, of length 1, across the normal: along the lines.
    KdGeVector3d direction() const;
    /// Of the direction, in radians from 0 to less than a turn, counter-clockwise about the normal
    /// from the x axis of the object frame.
    double rotation() const;
    double textHeight() const { return data().textHeight; }
    /// The width at which lines are broken; 0 where they are not.
    double width() const { return data().width; }
    /// The defined height of columns; 0 where none is defined.
    double height() const { return data().height; }
    /// Of the letters without the room around them, as a plain font has them unless the drawing
    /// gives their size.
    double actualWidth() const;
    double actualHeight() const;
    /// A `KdDbTextStyleTableRecord`; the null id if it is not there.
    KdDbObjectId textStyle() const { return data().style; }
    /// A damaged drawing may give numbers beyond the named ones, here and in the next two.
    KdDb::MTextAttachment attachment() const { return data().attachment; }
    KdDb::MTextFlow flowDirection() const { return data().flow; }
    KdDb::LineSpacingStyle lineSpacingStyle() const { return data().lineSpacingStyle; }
    /// In units of the usual distance, which is five thirds of the text height.
    double lineSpacingFactor() const { return data().lineSpacingFactor; }
    bool backgroundFillOn() const { return data().fill; }
    /// True if the ground is filled with the colour of the drawing's own ground.
    bool useBackgroundColorOn() const { return data().fillWithBackground; }
    KdErrorStatus getBackgroundFillColor(KdCmColor& color) const;
    /// Size of the filled ground, in text heights.
    double getBackgroundScaleFactor() const { return data().fillFactor; }
    /// True if a frame is drawn around the text.
    bool showBorders() const { return data().frame; }
    KdDb::MTextColumnType columnType() const { return data().columns.type; }
    int columnCount() const { return data().columns.count; }
    double columnWidth() const { return data().columns.width; }
    double columnGutterWidth() const { return data().columns.gutter; }

    /// The corners of the letters: top left, top right, bottom left, bottom right.
    KdErrorStatus getBoundingPoints(KdArray<KdGePoint3d>& points) const override;
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
