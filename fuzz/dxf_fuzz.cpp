// Reads arbitrary bytes as a drawing with everything in it, asks its entities what entities can be
// asked, and writes part of it out again. What was written must be a whole drawing that can be
// read. Seeds: corpus/dxf, in both forms; the words of the format: dxf.dict.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include <database/named_objects.h>
#include <exchange/drawing_reader.h>
#include <exchange/drawing_writer.h>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// A file in memory, with a name that lasts as long as it does.
class MemoryFile
{
  public:
    MemoryFile(const std::uint8_t* data, std::size_t size)
        : m_descriptor(memfd_create("drawing", MFD_CLOEXEC))
    {
        require(m_descriptor >= 0);
        std::size_t written = 0;
        while (written < size) {
            const ssize_t part = write(m_descriptor, data + written, size - written);
            require(part > 0);
            written += static_cast<std::size_t>(part);
        }
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

  private:
    int m_descriptor;
};

std::filesystem::path scratchFile()
{
    static const std::string name = "/dev/shm/dxf-fuzz-" + std::to_string(getpid()) + ".dxf";
    return name;
}

void ask(const KdDbEntity& entity)
{
    entity.layer();
    entity.linetype();
    entity.plotStyleName();
    entity.blockId();
    entity.isPlanar();
    entity.isAnnotative();
    KdArray<KdGePoint3d> grips;
    entity.getGripPoints(grips);
    KdGeExtents3d extents;
    entity.getGeomExtents(extents);
}

/// Asks all entities and gives every second one that a block shows.
std::vector<KdDbObjectId> askAll(const KdDbDatabase& database)
{
    std::vector<KdDbObjectId> chosen;
    std::size_t count = 0;
    for (const KdDbObject* object : database.objects()) {
        const auto* entity = dynamic_cast<const KdDbEntity*>(object);
        if (!entity)
            continue;
        ask(*entity);
        if (entity->source().length > 0 && ++count % 2 == 0)
            chosen.push_back(entity->objectId());
    }
    kddbDictionaryVariable(database, L"CANNOSCALE");
    require(database.openCount() == 0);
    return chosen;
}

void writeAndRead(const KdDbDatabase& database, const std::vector<KdDbObjectId>& chosen)
{
    KdString error;
    WriteOptions options;
    options.overwrite = true;
    require(writeSelection(database, chosen, scratchFile(), error, options) == eOk);
    std::unique_ptr<KdDbDatabase> written;
    ReadReport report;
    require(readDrawing(scratchFile(), written, report) == eOk);
    std::filesystem::remove(scratchFile());
    for (const ReadFinding& finding : report.findings) {
        const auto kind = static_cast<DrawingFinding>(finding.number);
        require(kind != DrawingFinding::NoEndOfFile && kind != DrawingFinding::SectionNotClosed);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const MemoryFile file(data, size);
    ReadOptions options;
    options.readAllMembers = true;
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    const KdErrorStatus status = readDrawing(file.path(), database, report, options);
    require(status == eOk || status == eBadDrawing);
    require((status == eOk) == (database != nullptr));
    require(report.error.isEmpty() == (status == eOk));
    if (database)
        writeAndRead(*database, askAll(*database));
    return 0;
}
