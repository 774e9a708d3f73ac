#include "member_source.h"

#include <array>
#include <atomic>
#include <mutex>
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

/// How the members of a class are read.
struct Reading
{
    const KdRxClass* rxClass;
    const MemberReaderRow* row;
    bool isEntity;
};

/// All rows by class. Several threads may ask at the same time.
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

    const Reading& find(const KdRxClass* rxClass)
    {
        std::atomic<const Reading*>& recent = m_recent[placeOf(rxClass)];
        const Reading* reading = recent.load(std::memory_order_acquire);
        if (!reading || reading->rxClass != rxClass) {
            reading = &findAnew(rxClass);
            recent.store(reading, std::memory_order_release);
        }
        return *reading;
    }

  private:
    static constexpr unsigned kBits = 10;

    static std::size_t placeOf(const KdRxClass* rxClass)
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
        return reinterpret_cast<std::uintptr_t>(rxClass) * kGoldenRatio >> (64 - kBits);
    }

    const Reading& findAnew(const KdRxClass* rxClass)
    {
        const std::lock_guard lock(m_guard);
        const auto [known, isNew] = m_readings.try_emplace(rxClass);
        if (isNew)
            known->second = {rxClass, &rowOf(rxClass), rxClass->isDerivedFrom(KdDbEntity::desc())};
        return known->second;
    }

    const MemberReaderRow& rowOf(const KdRxClass* rxClass) const
    {
        for (; rxClass; rxClass = rxClass->myParent()) {
            const auto found = m_rows.find(rxClass);
            if (found != m_rows.end())
                return *found->second;
        }
        return kOtherClasses;
    }

    std::unordered_map<const KdRxClass*, const MemberReaderRow*> m_rows;
    std::mutex m_guard;
    std::unordered_map<const KdRxClass*, Reading> m_readings; ///< of all classes asked for so far
    /// Stands before the other, so that nearly all questions need no lock.
    std::array<std::atomic<const Reading*>, std::size_t{1} << kBits> m_recent{};
};

const Reading& readingOf(const KdDbObject& object)
{
    static ReaderMap readers;
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
    return readingOf(object).row->mayBeBeside;
}

void readMembers(DrawingSource& source, const KdDbObject& object, SourceRange range,
                 ObjectMembers& members)
{
    if (range.length == 0)
        return;
    const Reading& reading = readingOf(object);
    RecordReader reader(source, object, range, members,
                        reading.isEntity ? static_cast<EntityMembers*>(&members) : nullptr);
    reading.row->read(reader, members);
    reader.skipRest(); // a reader may stop early; extended data stands last
}

} // namespace dxf
