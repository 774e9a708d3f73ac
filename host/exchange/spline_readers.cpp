// Splines and helices.
#include <entities/spline.h>

#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kClosed = 1;
constexpr int kPeriodic = 2;
constexpr int kPlanar = 8;
constexpr int kLinear = 16;

void takeFlags(int flags, SplineMembers& spline)
{
    spline.closed = (flags & kClosed) != 0;
    spline.periodic = (flags & kPeriodic) != 0;
    spline.planar = (flags & (kPlanar | kLinear)) != 0;
}

constexpr std::uint32_t kLeastBytesOfReal = 5;
constexpr std::uint32_t kLeastBytesOfPoint = 10;

/// One of the lists, or how long one will be, which only serves to make room.
void takeFromList(RecordReader& reader, SplineMembers& spline)
{
    switch (reader.code()) {
    case 72:
        spline.knots.reserve(reader.statedCount(kLeastBytesOfReal));
        break;
    case 73:
        spline.controlPoints.reserve(reader.statedCount(kLeastBytesOfPoint));
        break;
    case 74:
        spline.fitPoints.reserve(reader.statedCount(kLeastBytesOfPoint));
        break;
    case 10:
        spline.controlPoints.push_back(reader.point());
        break;
    case 11:
        spline.fitPoints.push_back(reader.point());
        break;
    case 40:
        spline.knots.push_back(reader.real());
        break;
    case 41:
        spline.weights.push_back(reader.real());
        break;
    default:
        break;
    }
}

void takeSpline(RecordReader& reader, SplineMembers& spline)
{
    switch (reader.code()) {
    case 12:
        spline.startTangent = reader.vector();
        break;
    case 13:
        spline.endTangent = reader.vector();
        break;
    case 42:
        spline.knotTolerance = reader.real();
        break;
    case 43:
        spline.controlPointTolerance = reader.real();
        break;
    case 44:
        spline.fitTolerance = reader.real();
        break;
    case 70:
        takeFlags(reader.integer(), spline);
        break;
    case 71:
        spline.degree = reader.shortInteger();
        break;
    case 210:
        spline.normal = reader.vector();
        break;
    default:
        takeFromList(reader, spline);
    }
}

/// Gives back the room that lists took beforehand: many drawings are full of them.
void finishSpline(RecordReader& reader, SplineMembers& spline)
{
    const bool hasToBeFitted = spline.controlPoints.empty() && !spline.fitPoints.empty();
    if (hasToBeFitted && reader.source().leave()) // the kernel is asked by one thread alone
        return;
    spline.fitCurve();
    spline.controlPoints.shrink_to_fit();
    spline.fitPoints.shrink_to_fit();
    spline.knots.shrink_to_fit();
    spline.weights.shrink_to_fit();
}

void readSpline(RecordReader& reader, SplineMembers& spline)
{
    while (reader.next())
        takeSpline(reader, spline);
    finishSpline(reader, spline);
}

/// Drawings number the constraints in another way; what is none of the three stays as it is.
std::int16_t constraintOf(std::int16_t number)
{
    switch (number) {
    case 0:
        return KdDb::kHelixTurnHeight;
    case 1:
        return KdDb::kHelixTurns;
    case 2:
        return KdDb::kHelixHeight;
    default:
        return number;
    }
}

void takeHelix(RecordReader& reader, HelixMembers& helix)
{
    switch (reader.code()) {
    case 10:
        helix.axisPoint = reader.point();
        break;
    case 11:
        helix.startPoint = reader.point();
        break;
    case 12:
        helix.axis = reader.vector();
        break;
    case 40:
        helix.topRadius = reader.real();
        break;
    case 41:
        helix.turns = reader.real();
        break;
    case 42:
        helix.turnHeight = reader.real();
        break;
    case 280:
        helix.constraint = constraintOf(reader.shortInteger());
        break;
    case 290:
        helix.rightHanded = reader.flag();
        break;
    default:
        break;
    }
}

void readHelix(RecordReader& reader, HelixMembers& helix)
{
    while (reader.next()) {
        if (reader.isIn("AcDbHelix"))
            takeHelix(reader, helix);
        else
            takeSpline(reader, helix);
    }
    finishSpline(reader, helix);
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbSpline, SplineMembers, readSpline>()),
    beside(memberReader<KdDbHelix, HelixMembers, readHelix>()),
};

} // namespace

std::span<const MemberReaderRow> splineReaders()
{
    return kRows;
}

} // namespace dxf
