#include "member_source.h"

#include <unordered_map>

#include "member_readers.h"

namespace dxf {
namespace {

using Read = void (*)(RecordReader&, ObjectMembers&);

void readNothingMore(RecordReader& reader, ObjectMembers&)
{
    reader.skipRest();
}

/// All rows by class.
class ReaderMap
{
  public:
    ReaderMap()
    {
        for (const auto rows :
             {tableReaders(), objectReaders(), curveReaders(), polylineReaders(), splineReaders(),
              meshReaders(), textReaders(), insertReaders(), viewportReaders(), proxyReaders()}) {
        for (const auto rows : {tableReaders(), dimensionStyleReaders(), objectReaders(),
                                curveReaders(), polylineReaders(), meshReaders(), textReaders(),
                                insertReaders(), viewportReaders(), proxyReaders()}) {
             {tableReaders(), dimensionStyleReaders(), dimensionReaders(), associativityReaders(),
              objectReaders(), curveReaders(), polylineReaders(), meshReaders(), textReaders(),
              insertReaders(), viewportReaders(), proxyReaders()}) {
        for (const auto rows : {tableReaders(), objectReaders(), curveReaders(), polylineReaders(),
                                meshReaders(), textReaders(), mtextReaders(), mleaderReaders(),
                                insertReaders(), viewportReaders(), proxyReaders()}) {
             {tableReaders(), dimensionStyleReaders(), objectReaders(), curveReaders(),
              polylineReaders(), meshReaders(), textReaders(), mtextReaders(), leaderReaders(),
              mleaderReaders(), insertReaders(), viewportReaders(), proxyReaders()}) {
             {tableReaders(), objectReaders(), curveReaders(), polylineReaders(), meshReaders(),
              textReaders(), insertReaders(), hatchReaders(), viewportReaders(), proxyReaders()}) {
             {tableReaders(), objectReaders(), curveReaders(), polylineReaders(), meshReaders(),
              textReaders(), mtextReaders(), mleaderReaders(), insertReaders(), viewportReaders(),
              proxyReaders(), faceReaders(), imageReaders(), mlineReaders(), lightReaders(),
              sectionReaders(), solid3dReaders(), pointCloudReaders(), geoPositionReaders()}) {
            for (const MemberReaderRow& row : rows)
                m_readers.emplace(row.rxClass(), row.read);
        }
    }

    Read find(const KdRxClass* rxClass) const
    {
        for (; rxClass; rxClass = rxClass->myParent()) {
            const auto found = m_readers.find(rxClass);
            if (found != m_readers.end())
                return found->second;
        }
        return readNothingMore;
    }

  private:
    std::unordered_map<const KdRxClass*, Read> m_readers;
};

} // namespace

void readMembers(DrawingSource& source, const KdDbObject& object, SourceRange range,
                 ObjectMembers& members)
{
    static const ReaderMap readers;
    if (range.length == 0)
        return;
    RecordReader reader(source, object, range, members);
    readers.find(object.isA())(reader, members);
    reader.skipRest(); // a reader may stop early; extended data stands last
}

} // namespace dxf
