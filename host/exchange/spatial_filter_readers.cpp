// What cuts the contents of block references.
#include <entities/spatial_filter.h>

#include "member_readers.h"

namespace dxf {
namespace {

/// Three rows of four numbers each.
constexpr std::size_t kMatrixSize = 12;

KdGeMatrix3d matrixFrom(std::span<const double> numbers)
{
    KdGeMatrix3d matrix;
    for (std::size_t i = 0; i < kMatrixSize; ++i)
        matrix.entry[i / 4][i % 4] = numbers[i];
    return matrix;
}

/// Code 40 has two meanings: the distance to a plane in front, which is missing where nothing is
/// cut there, and the numbers of two matrices behind it.
void takeNumbers(std::span<const double> numbers, SpatialFilterMembers& filter)
{
    if (numbers.size() > 2 * kMatrixSize)
        numbers = numbers.subspan(1);
    if (numbers.size() >= kMatrixSize)
        filter.worldToBlock = matrixFrom(numbers);
    if (numbers.size() >= 2 * kMatrixSize)
        filter.worldToBoundary = matrixFrom(numbers.subspan(kMatrixSize));
}

void readSpatialFilter(RecordReader& reader, SpatialFilterMembers& filter)
{
    constexpr std::size_t kMostNumbers = 2 * kMatrixSize + 1;
    std::vector<double> numbers;
    while (reader.next()) {
        if (reader.code() == 10)
            filter.boundary.push_back(reader.point2d());
        else if (reader.code() == 40 && numbers.size() < kMostNumbers)
            numbers.push_back(reader.real());
        else if (reader.code() == 71)
            filter.enabled = reader.flag();
    }
    takeNumbers(numbers, filter);
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbSpatialFilter, SpatialFilterMembers, readSpatialFilter>(),
};

} // namespace

std::span<const MemberReaderRow> spatialFilterReaders()
{
    return kRows;
}

} // namespace dxf
