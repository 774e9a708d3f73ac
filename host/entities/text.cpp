#include <entities/text.h>

#include <cmath>

#include "text_box.h"
#include "text_metrics.h"

KD_RX_DEFINE(KdDbText, KdDbEntity, L"AcDbText", L"TEXT")

namespace {

bool isBetweenTwoPoints(const TextMembers& text)
{
    return text.horizontalMode == KdDb::kTextAligned || text.horizontalMode == KdDb::kTextFit;
}

/// Where the box begins for its width and the way in which the text is aligned.
double leftEdge(const TextMembers& text, double width)
{
    switch (text.horizontalMode) {
    case KdDb::kTextCenter:
    case KdDb::kTextMiddle:
        return -width / 2.0;
    case KdDb::kTextRight:
        return -width;
    default:
        return 0.0;
    }
}

double baseLine(const TextMembers& text, double descent)
{
    if (text.horizontalMode == KdDb::kTextMiddle)
        return -text.height / 2.0;
    switch (text.verticalMode) {
    case KdDb::kTextBottom:
        return descent;
    case KdDb::kTextVerticalMiddle:
        return -text.height / 2.0;
    case KdDb::kTextTop:
        return -text.height;
    default:
        return 0.0;
    }
}

TextPlacement placementOf(const TextMembers& text)
{
    const bool isAtPosition =
        text.horizontalMode == KdDb::kTextLeft && text.verticalMode == KdDb::kTextBase;
    TextPlacement placement;
    placement.origin = isAtPosition ? text.position : text.alignmentPoint;
    placement.rotation = text.rotation;
    placement.oblique = text.oblique;
    placement.mirroredInX = text.mirroredInX;
    placement.mirroredInY = text.mirroredInY;
    if (isBetweenTwoPoints(text)) {
        const KdGeVector3d line = text.alignmentPoint - text.position;
        placement.origin = text.position;
        placement.rotation = std::atan2(line.y, line.x);
        placement.mirroredInX = false; // would only leave the stretch between the points
    }
    return placement;
}

TextBox boxOf(const TextMembers& text, const std::wstring& letters)
{
    const double width = isBetweenTwoPoints(text)
                             ? text.position.distanceTo(text.alignmentPoint)
                             : lettersWidth(letters) * text.height * text.widthFactor;
    const double descent = lettersDescent(letters) * text.height;
    const double left = leftEdge(text, width);
    const double base = baseLine(text, descent);
    return {left, left + width, base - descent, base + text.height};
}

} // namespace

KdErrorStatus KdDbText::getGeomExtents(KdGeExtents3d& extents) const
{
    const std::wstring letters = shownLetters(shownText());
    if (letters.empty() || height() <= 0.0)
        return eNotApplicable;
    extents = placedExtents(boxOf(data(), letters), placementOf(data()), data().extrusion.frame(),
                            thickness());
    return eOk;
}
