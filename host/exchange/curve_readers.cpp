// Lines, circles, arcs, ellipses, rays and points.
#include <entities/circle.h>
#include <entities/ellipse.h>
#include <entities/line.h>
#include <entities/point.h>
#include <entities/ray.h>

#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

void readLine(RecordReader& reader, LineMembers& line)
{
    while (reader.next()) {
        if (reader.code() == 10)
            line.start = reader.point();
        else if (reader.code() == 11)
            line.end = reader.point();
        else
            takeExtrusion(reader, line.extrusion);
    }
}

bool takeCircle(RecordReader& reader, CircleMembers& circle)
{
    switch (reader.code()) {
    case 10:
        circle.center = reader.point();
        return true;
    case 40:
        circle.radius = reader.real();
        return true;
    default:
        return takeExtrusion(reader, circle.extrusion);
    }
}

void readCircle(RecordReader& reader, CircleMembers& circle)
{
    while (reader.next())
        takeCircle(reader, circle);
}

void readArc(RecordReader& reader, ArcMembers& arc)
{
    while (reader.next()) {
        if (reader.code() == 50)
            arc.startAngle = reader.angle();
        else if (reader.code() == 51)
            arc.endAngle = reader.angle();
        else
            takeCircle(reader, arc);
    }
}

void readEllipse(RecordReader& reader, EllipseMembers& ellipse)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            ellipse.center = reader.point();
            break;
        case 11:
            ellipse.majorAxis = reader.vector();
            break;
        case 40:
            ellipse.radiusRatio = reader.real();
            break;
        case 41:
            ellipse.startParam = reader.real();
            break;
        case 42:
            ellipse.endParam = reader.real();
            break;
        default:
            takeExtrusion(reader, ellipse.extrusion);
        }
    }
}

void readRay(RecordReader& reader, RayMembers& ray)
{
    while (reader.next()) {
        if (reader.code() == 10)
            ray.basePoint = reader.point();
        else if (reader.code() == 11)
            ray.direction = reader.vector();
    }
}

void readPoint(RecordReader& reader, PointMembers& point)
{
    while (reader.next()) {
        if (reader.code() == 10)
            point.position = reader.point();
        else if (reader.code() == 50)
            point.ecsRotation = reader.angle();
        else
            takeExtrusion(reader, point.extrusion);
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbLine, LineMembers, readLine>()),
    beside(memberReader<KdDbCircle, CircleMembers, readCircle>()),
    beside(memberReader<KdDbArc, ArcMembers, readArc>()),
    beside(memberReader<KdDbEllipse, EllipseMembers, readEllipse>()),
    beside(memberReader<KdDbRay, RayMembers, readRay>()),
    beside(memberReader<KdDbXline, RayMembers, readRay>()),
    beside(memberReader<KdDbPoint, PointMembers, readPoint>()),
};

} // namespace

std::span<const MemberReaderRow> curveReaders()
{
    return kRows;
}

} // namespace dxf
