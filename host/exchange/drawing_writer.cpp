#include <exchange/drawing_writer.h>

#include <new>
#include <utility>

#include <entities/viewport.h>

#include "member_source.h"
#include "needed_records.h"
#include "outline.h"
#include "reference_cleaner.h"

namespace {

using namespace dxf;

/// Groups that a damaged source lacks, in the form of the source.
class Filler
{
  public:
    explicit Filler(const FileForm& form) : m_form(form), m_lineEnd(lineEndOf(form)) {}

    std::string record(std::string_view name) const
    {
        if (!m_form.binary)
            return ("  0" + m_lineEnd).append(name).append(m_lineEnd);
        const std::size_t zeros = m_form.width == CodeWidth::OneByte ? 1 : 2;
        return std::string(zeros, '\0').append(name).append(1, '\0');
    }
    /// What a range of the source needs behind it before a group may follow.
    std::string_view endOfLast(std::uint64_t end) const
    {
        const bool isOpen = !m_form.binary && end > 0 && m_form.bytes[end - 1] != '\n' &&
                            m_form.bytes[end - 1] != '\r';
        return isOpen ? std::string_view(m_lineEnd) : std::string_view();
    }

  private:
    static std::string lineEndOf(const FileForm& form)
    {
        const std::size_t first = form.bytes.find_first_of("\r\n");
        if (form.binary || first == std::string_view::npos || form.bytes[first] == '\n')
            return "\n";
        return form.bytes.substr(first, 2) == "\r\n" ? "\r\n" : "\r";
    }

    const FileForm& m_form;
    std::string m_lineEnd;
};

/// The places of the entities in the source.
KdErrorStatus placesOf(const KdDbDatabase& database, std::span<const KdDbObjectId> entities,
                       std::unordered_set<std::uint64_t>& places)
{
    for (KdDbObjectId id : entities) {
        while (id.ownerId().isKindOf(KdDbEntity::desc())) // vertices, attributes
            id = id.ownerId();
        const OpenForRead<KdDbEntity> entity(id);
        if (!entity || id.database() != &database || entity->source().length == 0)
            return eInvalidInput;
        places.insert(entity->source().offset);
    }
    return eOk;
}

/// A layout can't do without the viewport that is its sheet: the first one in its block.
void addSheetViewports(const KdDbDatabase& database, std::unordered_set<std::uint64_t>& places)
{
    for (const KdDbObjectId id : database.table<KdDbBlockTable>().recordIds()) {
        const OpenForRead<KdDbBlockTableRecord> block(id);
        if (!block || !block->isLayout() || id == database.modelSpaceId())
            continue;
        for (const KdDbObjectId entity : block->entityIds()) {
            const OpenForRead<KdDbViewport> viewport(entity);
            if (viewport) {
                places.insert(viewport->source().offset);
                break;
            }
        }
    }
}

class SelectionWriter
{
  public:
    SelectionWriter(const DrawingSource& source, const std::unordered_set<std::uint64_t>& places)
        : m_form(source.form),
          m_outline(outlineOf(source.form)),
          m_needed(m_outline, source.form, source.decoder),
          m_filler(source.form)
    {
        m_needed.keep(places);
    }

    void write(SafeFile& file) const
    {
        put(file, 0, m_outline.begin);
        for (const Outline::Section& section : m_outline.sections) {
            if (section.kind == SectionKind::Preview)
                continue;
            put(file, section.begin, section.content);
            for (std::size_t i = section.firstRecord; i < section.lastRecord; ++i)
                putRecord(file, i);
            file.write(m_filler.record("ENDSEC"));
        }
        file.write(m_filler.record("EOF"));
    }

  private:
    void put(SafeFile& file, std::uint64_t begin, std::uint64_t end) const
    {
        file.write(m_form.bytes.substr(begin, end - begin));
        file.write(m_filler.endOfLast(end));
    }

    void putRecord(SafeFile& file, std::size_t index) const
    {
        if (!m_needed.isKept(index))
            return;
        const Outline::Record& record = m_outline.records[index];
        const auto isDropped = [this](std::uint64_t handle) { return m_needed.isDropped(handle); };
        for (const ByteRange& range : cleanedParts(m_form, record, isDropped))
            put(file, range.begin, range.end);
        // A block that the source does not close is closed here.
        if (record.block == 0)
            return;
        const Outline::Block& block = m_outline.blocks[record.block - 1];
        if (!block.isClosed && index + 1 == block.lastRecord)
            file.write(m_filler.record("ENDBLK"));
    }

    const FileForm& m_form;
    Outline m_outline;
    NeededRecords m_needed;
    Filler m_filler;
};

KdErrorStatus write(const PreparedSelection& selection, const std::filesystem::path& target,
                    KdString& error, const WriteOptions& options)
{
    const DrawingSource& drawing = static_cast<const MemberSource*>(selection.source)->drawing();
    SafeFile file;
    const KdErrorStatus status = file.open(
        target, {.overwrite = options.overwrite, .untouchable = drawing.bytes.file()}, error);
    if (status != eOk)
        return status;
    SelectionWriter(drawing, selection.places).write(file);
    if (!drawing.bytes.isIntact()) { // asked when all bytes have been taken
        error = L"The drawing's file was changed by another program since it was read.";
        return eFileAccessError;
    }
    return file.finish(error);
}

} // namespace

KdErrorStatus prepareSelection(const KdDbDatabase& database, std::span<const KdDbObjectId> entities,
                               PreparedSelection& selection, KdString& error)
{
    PreparedSelection prepared{dynamic_cast<const MemberSource*>(database.source()), {}};
    if (!prepared.source || placesOf(database, entities, prepared.places) != eOk) {
        error = L"Only entities that were read from a file can be written.";
        return eInvalidInput;
    }
    addSheetViewports(database, prepared.places);
    selection = std::move(prepared);
    return eOk;
}

KdErrorStatus writeSelection(const PreparedSelection& selection,
                             const std::filesystem::path& target, KdString& error,
                             const WriteOptions& options)
{
    try {
        return write(selection, target, error, options);
    } catch (const std::bad_alloc&) {
        error = L"The drawing is too large for the memory.";
        return eFileAccessError;
    }
}

KdErrorStatus writeSelection(const KdDbDatabase& database, std::span<const KdDbObjectId> entities,
                             const std::filesystem::path& target, KdString& error,
                             const WriteOptions& options)
{
    PreparedSelection selection;
    const KdErrorStatus status = prepareSelection(database, entities, selection, error);
    return status == eOk ? writeSelection(selection, target, error, options) : status;
}
