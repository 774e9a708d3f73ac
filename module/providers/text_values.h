/// What the providers of several kinds of text read.
#pragma once

#include <array>

#include <entities/mtext.h>
#include <entities/text.h>

#include <providers/property_row.h>

/// The name of a text style; empty if it is not there or no text style.
KdString textStyleName(KdDbObjectId style);
/// Offers all text styles of the working drawing.
bool textStyleChoices(const PropertyRequest& request);

/// The fifteen ways in which a single-line text is aligned, in the order in which they are offered.
/// Each provider has ids of its own, which follow each other.
constexpr std::array<ResourceText, 15> justifyNames(int firstId)
{
    constexpr const wchar_t* kNames[] = {
        L"Left",          L"Center",       L"Right",       L"Aligned",       L"Middle",
        L"Fit",           L"Top left",     L"Top center",  L"Top right",     L"Middle left",
        L"Middle center", L"Middle right", L"Bottom left", L"Bottom center", L"Bottom right",
    };
    std::array<ResourceText, 15> names{};
    for (int i = 0; i < 15; ++i)
        names[static_cast<std::size_t>(i)] = {firstId + i, kNames[i]};
    return names;
}
/// Which of them two modes mean; -1 for modes that mean none.
int justifyIndex(int horizontalMode, int verticalMode);

/// Values of texts of several lines.
KdString contentsOf(const KdDbMText& text);
KdString directionName(const KdDbMText& text);
bool directionChoices(const PropertyRequest& request);
KdString lineSpacingStyleName(const KdDbMText& text);
bool lineSpacingStyleChoices(const PropertyRequest& request);
/// From base line to base line, in drawing units.
double lineSpaceDistance(const KdDbMText& text);
