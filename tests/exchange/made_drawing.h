// Small drawings for tests, written from pairs of code and value.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <exchange/drawing_reader.h>

/// The groups of a drawing in order. A value stands as it is written in a text file.
using Groups = std::vector<std::pair<int, std::string>>;

/// The text form.
std::string asText(const Groups& groups, const std::string& lineEnd = "\n");
/// The binary form, with codes of one byte (to R12) or two.
std::string asBinary(const Groups& groups, bool narrowCodes = false);

/// `content` as the only section of that name.
Groups section(const std::string& name, const Groups& content);
/// All parts in a row, closed by the end mark.
Groups drawing(const std::vector<Groups>& parts);
/// A header that states a version, and a code page if there is one.
Groups header(const std::string& version, const std::string& codePage = {});

/// A file that goes with the object.
class TemporaryFile
{
  public:
    explicit TemporaryFile(const std::string& content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};

/// What reading gave.
struct ReadDrawing
{
    KdErrorStatus status = eOk;
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;

    /// The entities of the model, of a sheet or of a block, in order.
    std::vector<const KdDbEntity*> entities(const wchar_t* block = kModelSpaceName) const;
    /// The entity at a place in the model, as that class; null if it is not there or of another.
    template <class T>
    const T* entity(std::size_t index, const wchar_t* block = kModelSpaceName) const
    {
        const auto all = entities(block);
        return index < all.size() ? dynamic_cast<const T*>(all[index]) : nullptr;
    }
    template <class Table>
    const typename Table::Record* record(const wchar_t* name) const
    {
        KdDbObjectId id;
        if (database->table<Table>().getIdAt(name, id) != eOk)
            return nullptr;
        typename Table::Record* found = nullptr;
        if (kddbOpenObject(found, id) == eOk)
            found->close();
        return found;
    }
    const KdDbObject* object(KdDbHandle handle) const;
    bool hasFinding(DrawingFinding kind) const;
    /// The line of the first finding of that kind, 0 if there is none.
    std::uint64_t lineOf(DrawingFinding kind) const;
};

ReadDrawing readBytes(const std::string& content, const ReadOptions& options = {});
ReadDrawing readGroups(const Groups& groups, const ReadOptions& options = {});
/// The same with the members of all objects.
ReadDrawing readGroupsWhole(const Groups& groups);
