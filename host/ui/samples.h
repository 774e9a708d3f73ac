/// Small drawings that show what a row of a combo stands for.
#pragma once

#include <span>
#include <vector>

#include <database/color.h>

#include <QIcon>
#include <QSize>

/// The sizes for which the samples are drawn, in pixels of a usual screen.
constexpr QSize kColorSampleSize{22, 12};
constexpr QSize kLinetypeSampleSize{76, 12};
constexpr QSize kLineweightSampleSize{52, 12};
constexpr QSize kArrowheadSampleSize{38, 14};

/// The colours of samples follow the palette, so that they show on bright and dark ground.
QIcon colorSample(const KdCmColor& color);
/// @param dashes  drawing units: dashes, negative gaps, 0 for dots; none is a continuous line
QIcon linetypeSample(std::vector<double> dashes);
/// @param weight  1/100 mm, drawn in its true width on a usual screen
QIcon lineweightSample(int weight);
/// A sample without anything in it, for rows that leave the choice to something else.
QIcon emptySample();

/// What there is to know about an arrowhead.
struct ArrowheadRow
{
    unsigned int id;  ///< of its name in the resource library
    const char* name; ///< where the library has none
};
/// All arrowheads, in the order in which they are offered.
std::span<const ArrowheadRow> arrowheadRows();
/// @param row  one of `arrowheadRows`
QIcon arrowheadSample(int row);
