#include "member_source.h"

#include <unordered_map>

#include "member_readers.h"

namespace dxf {
namespace {

void readNothingMore(RecordReader& reader, ObjectMembers&)
{
    reader.skipRest();
}

constexpr MemberReaderRow kOtherClasses{KdDbObject::desc, readNothingMore, true};

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
                m_rows.emplace(row.rxClass(), &row);
        }
    }

    const MemberReaderRow& find(const KdRxClass* rxClass) const
    {
        for (; rxClass; rxClass = rxClass->myParent()) {
            const auto found = m_rows.find(rxClass);
            if (found != m_rows.end())
                return *found->second;
        }
        return kOtherClasses;
    }

  private:
    std::unordered_map<const KdRxClass*, const MemberReaderRow*> m_rows;
};

const MemberReaderRow& readerOf(const KdDbObject& object)
{
    static const ReaderMap readers;
    return readers.find(object.isA());
}

} // namespace

std::string_view MemberSource::bytes(SourceRange range) const
{
    const std::string_view all = m_source->bytes.view();
    return range.offset < all.size() ? all.substr(range.offset, range.length) : std::string_view();
}

bool mayBeReadBeside(const KdDbObject& object)
{
    return readerOf(object).mayBeBeside;
}

void readMembers(DrawingSource& source, const KdDbObject& object, SourceRange range,
                 ObjectMembers& members)
{
    if (range.length == 0)
        return;
    RecordReader reader(source, object, range, members);
    readerOf(object).read(reader, members);
    reader.skipRest(); // a reader may stop early; extended data stands last
}

} // namespace dxf
