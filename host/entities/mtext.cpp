#include <entities/mtext.h>

#include "mtext_layout.h"
#include "text_box.h"

KD_RX_DEFINE(KdDbMText, KdDbEntity, L"AcDbMText", L"MTEXT")

namespace {

bool hasColumns(const MTextData& text)
{
    return text.columns.type != KdDb::kNoColumns && text.columns.count > 1;
}

/// Columns of the same width, as high as they are defined.
MTextSize sizeOfColumns(const MTextData& text, double letterHeight)
{
    const MTextData::Columns& columns = text.columns;
    const double width = columns.count * columns.width + (columns.count - 1) * columns.gutter;
    return {width, text.height > 0.0 ? text.height : letterHeight};
}

MTextSize sizeOf(const MTextData& text)
{
    if (text.actualWidth > 0.0 && text.actualHeight > 0.0)
        return {text.actualWidth, text.actualHeight};
    MTextSetting setting;
    setting.textHeight = text.textHeight;
    setting.width = hasColumns(text) ? text.columns.width : text.width;
    setting.lineSpacingFactor = text.lineSpacingFactor;
    setting.exactSpacing = text.lineSpacingStyle == KdDb::kExactly;
    const MTextSize size = mtextSize(mtextLetters(text.contents, text.textHeight), setting);
    return hasColumns(text) ? sizeOfColumns(text, size.height) : size;
}

/// What share of the size lies before the location: 0, a half or the whole.
double shareBefore(int place)
{
    return place / 2.0;
}

int columnOf(KdDb::MTextAttachment attachment)
{
    return attachment >= KdDb::kTopLeft && attachment <= KdDb::kBottomRight ? (attachment - 1) % 3
                                                                            : 0;
}

int rowOf(KdDb::MTextAttachment attachment)
{
    return attachment >= KdDb::kTopLeft && attachment <= KdDb::kBottomRight ? (attachment - 1) / 3
                                                                            : 0;
}

} // namespace

KdErrorStatus KdDbMText::contents(KdString& text) const
{
    text = data().contents;
    return eOk;
}

KdString KdDbMText::text() const
{
    std::wstring plain;
    for (const MTextLetter& letter : mtextLetters(data().contents, data().textHeight))
        plain.push_back(letter.letter);
    return KdString(std::wstring_view(plain));
}

KdGeVector3d KdDbMText::normal() const
{
    return unitNormal(data().normal);
}

KdGeVector3d KdDbMText::direction() const
{
    return unitDirection(data().direction, normal());
}

double KdDbMText::rotation() const
{
    const KdGeVector3d z = normal();
    const KdGeVector3d x = KdGeMatrix3d::planeToWorld(z) * KdGeVector3d::kXAxis;
    return x.angleTo(direction(), z);
}

double KdDbMText::actualWidth() const
{
    return sizeOf(data()).width;
}

double KdDbMText::actualHeight() const
{
    return sizeOf(data()).height;
}

KdErrorStatus KdDbMText::getBackgroundFillColor(KdCmColor& color) const
{
    color = KdCmColor(data().fillColor);
    color.setNames(data().fillColorName);
    return eOk;
}

KdErrorStatus KdDbMText::getBoundingPoints(KdArray<KdGePoint3d>& points) const
{
    const MTextSize size = sizeOf(data());
    const double left = -shareBefore(columnOf(attachment())) * size.width;
    const double top = shareBefore(rowOf(attachment())) * size.height;
    appendCorners({left, left + size.width, top - size.height, top}, location(), direction(),
                  normal(), points);
    return eOk;
}

KdErrorStatus KdDbMText::getGeomExtents(KdGeExtents3d& extents) const
{
    if (data().contents.isEmpty() || textHeight() <= 0.0)
        return eNotApplicable;
    KdArray<KdGePoint3d> corners;
    getBoundingPoints(corners);
    extents = extentsOf(corners);
    return eOk;
}
