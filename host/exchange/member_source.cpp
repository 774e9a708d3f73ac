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

/// The rows of all families.
constexpr std::span<const MemberReaderRow> (*kFamilies[])() = {
    actionBodyReaders,  associativityReaders,  blockElementReaders, curveReaders,
    dimensionReaders,   dimensionStyleReaders, faceReaders,         geoPositionReaders,
    hatchReaders,       imageReaders,          insertReaders,       leaderReaders,
    lightReaders,       meshReaders,           mleaderReaders,      mlineReaders,
    mtextReaders,       objectReaders,         pointCloudReaders,   polylineReaders,
    proxyReaders,       sectionReaders,        solid3dReaders,      spatialFilterReaders,
    specialTextReaders, splineReaders,         tableReaders,        textReaders,
    viewportReaders,    xrecordReaders,
};

/// All rows by class.
class ReaderMap
{
  public:
    ReaderMap()
    {
        for (const auto readers : kFamilies) {
            for (const MemberReaderRow& row : readers())
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

std::string_view MemberSource::bytes(SourceRange range) const
{
    const std::string_view all = m_source->bytes.view();
    return range.offset < all.size() ? all.substr(range.offset, range.length) : std::string_view();
}

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
