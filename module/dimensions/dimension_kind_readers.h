/// What the rows of the kinds of dimensions are made of, beyond what all dimensions have.
#pragma once

#include <entities/all.h>

#include <dimensions/dimension_kind.h>
#include <dimensions/dimension_readers.h>
#include <providers/name_rows.h>

/// The value of the first getter whose class the entity is of; for what several kinds give.
template <auto... Getters>
bool firstOf(const PropertyRequest& request, ValueKind kind)
{
    const auto readIfOfClass = [&]<auto Getter>()
    {
        using Host = typename row_readers::HostOf<decltype(Getter)>::Type;
        return request.entity.isKindOf(Host::desc()) && value<Getter>(request, kind);
    };
    return (readIfOfClass.template operator()<Getters>() || ...);
}

/// Sets the kind alone: these properties do not report the entity, as intended.
bool neverRead(const PropertyRequest& request, ValueKind kind);
/// For a key that is listed and never answered.
bool unanswered(const PropertyRequest& request, ValueKind kind);

/// Not recognised where the points give no measurement. Some kinds leave the head untouched then,
/// others have set its kind before, as intended.
bool measurement(const PropertyRequest& request, ValueKind kind);

// Texts with a tag of 0 behind them in every call, as intended.
bool alternatePrefix(const PropertyRequest& request, ValueKind kind);
bool alternateSuffix(const PropertyRequest& request, ValueKind kind);
bool subUnitsSuffix(const PropertyRequest& request, ValueKind kind);

/// The one arrow of a radial dimension: the second block of usual ones, the first of large ones.
KdString singleArrow(const KdDbDimension& dimension);

/// -1, 0 or 1: the sign of DIMCEN says what marks the centre.
int centerMarkSign(const KdDbDimension& dimension);

/// 1 from right to left, otherwise 0.
int textDirection(const KdDbDimension& dimension);
inline constexpr NameRow kTextDirections[] = {{0, {77982, L"Left to Right"}},
                                              {1, {77983, L"Right to Left"}}};

double overrideCenterX(const KdDbRadialDimensionLarge& dimension);
double overrideCenterY(const KdDbRadialDimensionLarge& dimension);
double jogPointX(const KdDbRadialDimensionLarge& dimension);
double jogPointY(const KdDbRadialDimensionLarge& dimension);
