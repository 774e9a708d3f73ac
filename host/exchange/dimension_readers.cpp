// Dimensions. The same codes mean different points in different kinds.
#include <algorithm>
#include <iterator>

#include <entities/angular_dimensions.h>
#include <entities/linear_dimensions.h>
#include <entities/radial_dimensions.h>

#include "dimension_variables_reader.h"
#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

/// What all kinds have in common. The point 11 counts in the frame of the entity.
bool takeDimension(RecordReader& reader, DimensionMembers& dimension)
{
    switch (reader.code()) {
    case 1:
        dimension.text = reader.text();
        return true;
    case 2:
        dimension.block = reader.source().block(reader.group());
        return true;
    case 11:
        dimension.textPosition = reader.point();
        return true;
    case 51:
        dimension.horizontalRotation = reader.angle();
        return true;
    case 53:
        dimension.textRotation = reader.angle();
        return true;
    default:
        return takeDimensionStyle(reader, dimension.dimension) ||
               takeExtrusion(reader, dimension.extrusion);
    }
}

template <class Members, class Value>
struct Field
{
    int code;
    Value Members::*member;
};
template <class Members>
using PointField = Field<Members, KdGePoint3d>;

/// Reads a kind: the points of its table, what `takeMore` takes, and what all kinds have.
template <class Members, std::size_t Count>
void readKind(RecordReader& reader, Members& dimension, const PointField<Members> (&points)[Count],
              bool (*takeMore)(RecordReader&, Members&))
{
    while (reader.next()) {
        const int code = reader.code();
        const auto* const row =
            std::find_if(std::begin(points), std::end(points),
                         [code](const PointField<Members>& field) { return field.code == code; });
        if (row != std::end(points))
            dimension.*row->member = reader.point();
        else if (!takeMore(reader, dimension))
            takeDimension(reader, dimension);
    }
    finishDimensionStyleUse(reader, dimension.dimension);
}

template <class Members>
bool takeNothing(RecordReader&, Members&)
{
    return false;
}

template <class Members>
bool takeOblique(RecordReader& reader, Members& dimension)
{
    if (reader.code() != 52)
        return false;
    dimension.oblique = reader.angle();
    return true;
}

bool takeRotation(RecordReader& reader, RotatedDimensionMembers& dimension)
{
    if (reader.code() != 50)
        return takeOblique(reader, dimension);
    dimension.rotation = reader.angle();
    return true;
}

template <class Members>
bool takeLeaderLength(RecordReader& reader, Members& dimension)
{
    if (reader.code() != 40)
        return false;
    dimension.leaderLength = reader.real();
    return true;
}

bool takeAxis(RecordReader& reader, OrdinateDimensionMembers& dimension)
{
    constexpr int kUsesXAxis = 64;
    if (reader.code() != 70)
        return false;
    dimension.usesXAxis = (reader.integer() & kUsesXAxis) != 0;
    return true;
}

bool takeArc(RecordReader& reader, ArcDimensionMembers& dimension)
{
    if (!reader.isIn("AcDbArcDimension")) // before, the codes concern all dimensions
        return false;
    switch (reader.code()) {
    case 40:
        dimension.arcStartParam = reader.real();
        return true;
    case 41:
        dimension.arcEndParam = reader.real();
        return true;
    case 70:
        dimension.partial = reader.flag();
        return true;
    case 71:
        dimension.leader = reader.flag();
        return true;
    default:
        return false;
    }
}

constexpr PointField<AlignedDimensionMembers> kAlignedPoints[] = {
    {10, &AlignedDimensionMembers::dimLinePoint},
    {13, &AlignedDimensionMembers::xLine1Point},
    {14, &AlignedDimensionMembers::xLine2Point},
};

void readAligned(RecordReader& reader, AlignedDimensionMembers& dimension)
{
    readKind(reader, dimension, kAlignedPoints, takeOblique<AlignedDimensionMembers>);
}

constexpr PointField<RotatedDimensionMembers> kRotatedPoints[] = {
    {10, &RotatedDimensionMembers::dimLinePoint},
    {13, &RotatedDimensionMembers::xLine1Point},
    {14, &RotatedDimensionMembers::xLine2Point},
};

void readRotated(RecordReader& reader, RotatedDimensionMembers& dimension)
{
    readKind(reader, dimension, kRotatedPoints, takeRotation);
}

constexpr PointField<OrdinateDimensionMembers> kOrdinatePoints[] = {
    {10, &OrdinateDimensionMembers::origin},
    {13, &OrdinateDimensionMembers::definingPoint},
    {14, &OrdinateDimensionMembers::leaderEndPoint},
};

void readOrdinate(RecordReader& reader, OrdinateDimensionMembers& dimension)
{
    readKind(reader, dimension, kOrdinatePoints, takeAxis);
}

constexpr PointField<TwoLineAngularDimensionMembers> kTwoLinePoints[] = {
    {13, &TwoLineAngularDimensionMembers::xLine1Start},
    {14, &TwoLineAngularDimensionMembers::xLine1End},
    {15, &TwoLineAngularDimensionMembers::xLine2Start},
    {10, &TwoLineAngularDimensionMembers::xLine2End},
    {16, &TwoLineAngularDimensionMembers::arcPoint},
};

void readTwoLine(RecordReader& reader, TwoLineAngularDimensionMembers& dimension)
{
    readKind(reader, dimension, kTwoLinePoints, takeNothing<TwoLineAngularDimensionMembers>);
}

constexpr PointField<ThreePointAngularDimensionMembers> kThreePointPoints[] = {
    {10, &ThreePointAngularDimensionMembers::arcPoint},
    {13, &ThreePointAngularDimensionMembers::xLine1Point},
    {14, &ThreePointAngularDimensionMembers::xLine2Point},
    {15, &ThreePointAngularDimensionMembers::centerPoint},
};

void readThreePoint(RecordReader& reader, ThreePointAngularDimensionMembers& dimension)
{
    readKind(reader, dimension, kThreePointPoints, takeNothing<ThreePointAngularDimensionMembers>);
}

constexpr PointField<ArcDimensionMembers> kArcPoints[] = {
    {10, &ArcDimensionMembers::arcPoint},     {13, &ArcDimensionMembers::xLine1Point},
    {14, &ArcDimensionMembers::xLine2Point},  {15, &ArcDimensionMembers::centerPoint},
    {16, &ArcDimensionMembers::leader1Point}, {17, &ArcDimensionMembers::leader2Point},
};

void readArc(RecordReader& reader, ArcDimensionMembers& dimension)
{
    readKind(reader, dimension, kArcPoints, takeArc);
}

constexpr PointField<DiametricDimensionMembers> kDiametricPoints[] = {
    {10, &DiametricDimensionMembers::farChordPoint},
    {15, &DiametricDimensionMembers::chordPoint},
};

void readDiametric(RecordReader& reader, DiametricDimensionMembers& dimension)
{
    readKind(reader, dimension, kDiametricPoints, takeLeaderLength<DiametricDimensionMembers>);
}

constexpr PointField<RadialDimensionMembers> kRadialPoints[] = {
    {10, &RadialDimensionMembers::center},
    {15, &RadialDimensionMembers::chordPoint},
};

void readRadial(RecordReader& reader, RadialDimensionMembers& dimension)
{
    readKind(reader, dimension, kRadialPoints, takeLeaderLength<RadialDimensionMembers>);
}

constexpr PointField<RadialDimensionLargeMembers> kRadialLargePoints[] = {
    {10, &RadialDimensionLargeMembers::center},
    {13, &RadialDimensionLargeMembers::overrideCenter},
    {14, &RadialDimensionLargeMembers::jogPoint},
    {15, &RadialDimensionLargeMembers::chordPoint},
};

void readRadialLarge(RecordReader& reader, RadialDimensionLargeMembers& dimension)
{
    readKind(reader, dimension, kRadialLargePoints, takeNothing<RadialDimensionLargeMembers>);
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbAlignedDimension, AlignedDimensionMembers, readAligned>()),
    beside(memberReader<KdDbRotatedDimension, RotatedDimensionMembers, readRotated>()),
    beside(memberReader<KdDbOrdinateDimension, OrdinateDimensionMembers, readOrdinate>()),
    beside(memberReader<KdDb2LineAngularDimension, TwoLineAngularDimensionMembers, readTwoLine>()),
    beside(memberReader<KdDb3PointAngularDimension, ThreePointAngularDimensionMembers,
                        readThreePoint>()),
    beside(memberReader<KdDbArcDimension, ArcDimensionMembers, readArc>()),
    beside(memberReader<KdDbDiametricDimension, DiametricDimensionMembers, readDiametric>()),
    beside(memberReader<KdDbRadialDimension, RadialDimensionMembers, readRadial>()),
    beside(memberReader<KdDbRadialDimensionLarge, RadialDimensionLargeMembers, readRadialLarge>()),
};

} // namespace

std::span<const MemberReaderRow> dimensionReaders()
{
    return kRows;
}

} // namespace dxf
