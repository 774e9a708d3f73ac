/// Writes parts of a drawing out again.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <unordered_set>

#include <database/database.h>

struct WriteOptions
{
    bool overwrite = false; ///< lets an existing file be replaced
};

/// Writes entities as a drawing of their own, in the form and version of the file that they were
/// read from. It is put together from the bytes of that file, so nothing is lost that this program
/// does not know: header, classes, tables and objects come along whole, of the blocks those that
/// are used, and what belongs to entities that stay behind is left out. The sheet viewports of
/// layouts come along, and so do entities that the chosen ones can't do without, such as the text
/// at the end of a leader or the outline of a clipped viewport.
///
/// The file appears under its name only when it is complete; on failure nothing is left behind, and
/// a file that was to be replaced is as it was.
/// @param database  a drawing that was read from a file
/// @param entities  of the model, of sheets or inside blocks; attributes and vertices stand for the
///                  entity that they belong to
/// @param target    where to; never the file that the drawing was read from
/// @param error     a sentence for the user on failure, otherwise untouched
/// @return          `eInvalidInput` for an entity of another drawing or one that was not read from
///                  a file, `eDuplicateKey` for a target that exists, `eFileAccessError` for one
///                  that can't be written, or if the drawing's own file was changed by others
///                  since it was read
KW_EXPORT KdErrorStatus writeSelection(const KdDbDatabase& database,
                                       std::span<const KdDbObjectId> entities,
                                       const std::filesystem::path& target, KdString& error,
                                       const WriteOptions& options = {});

/// A selection whose entities have been looked up. What is left to do needs the source alone.
struct PreparedSelection
{
    const KdDbMemberSource* source = nullptr; ///< of the drawing, which owns it
    std::unordered_set<std::uint64_t> places; ///< of the records in it
};

/// The first part of `writeSelection`, quickly done. `eInvalidInput` as there, `selection`
/// untouched.
KW_EXPORT KdErrorStatus prepareSelection(const KdDbDatabase& database,
                                         std::span<const KdDbObjectId> entities,
                                         PreparedSelection& selection, KdString& error);
/// The second part, which may run in a thread of its own while the drawing is used; the drawing
/// must not go meanwhile.
KW_EXPORT KdErrorStatus writeSelection(const PreparedSelection& selection,
                                       const std::filesystem::path& target, KdString& error,
                                       const WriteOptions& options = {});
