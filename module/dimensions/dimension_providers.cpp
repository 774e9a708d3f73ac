#include <dimensions/dimension_providers.h>

#include <providers/row_readers.h>

namespace {

bool isPartial(const KdDbArcDimension& dimension)
{
    return dimension.isPartial();
}

bool hasLeader(const KdDbArcDimension& dimension)
{
    return dimension.hasLeader();
}

/// A key of the family's table once more.
constexpr PropertyRow repeated(int id, const wchar_t* key, bool (*listed)(const KdDbEntity*))
{
    return {{id, key}, derived, ResBuf::kPoint3d, nullptr, noChoices, listed};
}

// clang-format off
constexpr PropertyRow kRepeatedOfArcs[] = {
    repeated(77588, L"Geometry:1st Dim definition point",    when<KdDbArcDimension, isPartial>),
    repeated(77589, L"Geometry:2nd Dim definition point",    when<KdDbArcDimension, isPartial>),
    repeated(77590, L"Geometry:Leader definition point 1",   when<KdDbArcDimension, hasLeader>),
    repeated(77591, L"Geometry:Leader definition point 2",   when<KdDbArcDimension, hasLeader>),
};
// clang-format on

bool styleOpens(const KdDbRotatedDimension& dimension)
{
    const OpenForRead<KdDbObject> style(dimension.dimensionStyle());
    return static_cast<bool>(style);
}

} // namespace

int KdDbRotatedDimension_Extension::PropertyCount(const KdDbEntity* entity,
                                                  KdArray<KdString>& names, KdArray<bool>& flags)
{
    if (!when<KdDbRotatedDimension, styleOpens>(entity))
        return 0;
    return DimensionKindProvider::PropertyCount(entity, names, flags);
}

int KdDbArcDimension_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                              KdArray<bool>& flags)
{
    const int status = DimensionKindProvider::PropertyCount(entity, names, flags);
    listRows(kRepeatedOfArcs, entity, names, flags);
    return status;
}
