#include <entities/fcf.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include "mtext_layout.h"
#include "text_box.h"

KD_RX_DEFINE(KdDbFcf, KdDbEntity, L"AcDbFcf", L"TOLERANCE")

namespace {

/// Takes the piece before the next mark off the front of a text.
std::wstring_view takePiece(std::wstring_view& text, std::wstring_view mark)
{
    const std::size_t end = text.find(mark);
    const std::wstring_view piece = text.substr(0, end);
    text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + mark.size());
    return piece;
}

/// Each cell holds its letters between two gaps. Empty cells behind the last full one are not
/// drawn.
double widthOfRow(std::wstring_view row, double textHeight, double gap)
{
    constexpr std::wstring_view kCellBar = L"%%v";
    double drawn = 0.0;
    double reached = 0.0;
    while (!row.empty()) {
        const auto letters = mtextLetters(takePiece(row, kCellBar), textHeight);
        MTextSetting setting;
        setting.textHeight = textHeight;
        reached += mtextSize(letters, setting).width + 2.0 * gap;
        if (!letters.empty())
            drawn = reached;
    }
    return drawn;
}

} // namespace

KdGeVector3d KdDbFcf::normal() const
{
    return unitNormal(data().normal);
}

KdGeVector3d KdDbFcf::direction() const
{
    return unitDirection(data().direction, normal());
}

KdErrorStatus KdDbFcf::getBoundingPoints(KdArray<KdGePoint3d>& points) const
{
    const double textHeight = dimtxt() * dimscale();
    const double gap = std::fabs(dimgap()) * dimscale();
    const double rowHeight = 2.0 * textHeight;
    double width = 0.0;
    double height = 0.0;
    for (std::wstring_view rows = text(); !rows.empty(); height += rowHeight)
        width = std::max(width, widthOfRow(takePiece(rows, L"\n"), textHeight, gap));
    if (width <= 0.0)
        return eNotApplicable;
    const double top = rowHeight / 2.0;
    appendCorners({0.0, width, top - height, top}, location(), direction(), normal(), points);
    return eOk;
}

KdErrorStatus KdDbFcf::getGeomExtents(KdGeExtents3d& extents) const
{
    KdArray<KdGePoint3d> corners;
    if (getBoundingPoints(corners) != eOk)
        return eNotApplicable;
    extents = extentsOf(corners);
    return eOk;
}
