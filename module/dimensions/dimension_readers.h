/// What rows of the providers of dimensions are made of.
#pragma once

#include <entities/dimension.h>

#include <dimensions/dimension_values.h>

inline const KdDbDimension& dimensionOf(const PropertyRequest& request)
{
    return static_cast<const KdDbDimension&>(request.entity);
}

// Zero suppression: a variable holds several switches.
constexpr int kZeroInches = 1;
constexpr int kZeroFeet = 2;
constexpr int kLeadingZeros = 4;
constexpr int kTrailingZeros = 8;

/// True if `value`, the value of a variable, says that the zeros of `mask` are left out.
bool suppressesZeros(int value, int mask);

template <auto Getter, int Mask>
bool suppressed(const KdDbDimension& dimension)
{
    return suppressesZeros((dimension.*Getter)(), Mask);
}

template <auto Getter>
KdString lineweight(const KdDbDimension& dimension)
{
    return lineweightText((dimension.*Getter)());
}

template <auto Getter>
bool linetype(const PropertyRequest& request, ValueKind kind)
{
    return readLinetype(request, kind, (dimensionOf(request).*Getter)());
}

/// The text of an arrowhead: a block of its own, if the dimension has separate ones and the getter
/// gives one, else the common one.
template <auto Getter>
KdString arrow(const KdDbDimension& dimension)
{
    if (!dimension.dimsah())
        return arrowText(dimension.dimblk());
    const KdDbObjectId own = (dimension.*Getter)();
    return arrowText(own.isNull() || own.isErased() ? dimension.dimblk() : own);
}

/// The part of a template such as "about <>mm" before the "<>"; empty if it has none.
KdString prefixOf(const KdString& dimensionTemplate);
/// The part behind it; the whole template if it has none.
KdString suffixOf(const KdString& dimensionTemplate);

/// Puts a text into the head, and a tag of 0 behind it whatever was asked for.
void storeTagged(ResBuf& head, const KdString& text);

/// The record behind a key in the pairs of a list of extended data; see
/// `KdDbDimension_Extension::findDimXdataValue`.
resbuf* valueOfKey(resbuf* list, int key);
/// How a style aligns tolerances: 0 by the sign, 1 by the decimal point; 0 for null.
short toleranceAlignmentOf(const KdDbDimStyleTableRecord* style);

/// DIMALT of the dimension's style, whatever the dimension itself sets; false without a style.
bool styleHasAlternateUnits(const KdDbDimension& dimension);

/// True if the dimension shows tolerances, as deviations or as limits.
inline bool showsTolerances(const KdDbDimension& dimension)
{
    return dimension.dimtol() || dimension.dimlim();
}
