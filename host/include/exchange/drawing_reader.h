/// Reads drawing files: DXF of all versions up to R2018, as text and binary.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include <database/database.h>
#include <exchange/findings.h>

struct ReadOptions
{
    /// Reads the members of all objects at once and not each on first use. The outcome is the same,
    /// except that the report then knows what is wrong inside entities as well.
    bool readAllMembers = false;
    /// How many threads read members then; 0: as many as are worth while. The outcome is the same
    /// with any number.
    unsigned threads = 0;
    /// The file will go or change, and nobody need know: it is read into memory whole. Otherwise a
    /// large file stays where it is, and the drawing reads from it; see `readDrawing`.
    bool fileWillGo = false;
    /// Called now and then with the part that is done, 0 to 1. Answering false cancels.
    std::function<bool(double fraction)> progress;
    /// Called with each finding as it is met, also with those that only come up when members are
    /// read later: what it refers to must live as long as the drawing.
    std::function<void(const ReadFinding&)> found;
};

struct ReadReport
{
    /// At most this many findings are kept; all are counted.
    static constexpr std::size_t kMostFindings = 200;

    KdString error;   ///< why nothing was read; empty on success
    KdString version; ///< such as "AC1015"; "AC1009" where the file does not say
    bool binary = false;
    std::size_t entities = 0; ///< in all blocks; vertices, attributes and sequence ends not counted
    std::size_t unknownEntities = 0;
    std::vector<ReadFinding> findings; ///< in the order in which they were met
    std::size_t totalFindings = 0;
    bool complete = false; ///< false if something that stands in the file could not be read
};

/// Reads a drawing. What can be read of a damaged file is read, the rest stands in the report.
///
/// A large file is kept open and read from as long as the drawing lives. It may be replaced or
/// deleted meanwhile; if another program changes its bytes, nothing crashes, but what is read from
/// then on may be wrong: `KdDbMemberSource::isIntact` tells. A small file is read whole.
/// @param file      the file
/// @param database  receives the drawing, owned by the caller; untouched on failure
/// @param report    what was read and found; on failure its `error` is a sentence for the user
/// @return          `eFileAccessError` for a file that is missing, no regular file, unreadable or
///                  too large for the memory, or that is changed while it is read,
///                  `eBadDrawing` for one that is empty or no DXF, `eUserBreak` when cancelled
KW_EXPORT KdErrorStatus readDrawing(const std::filesystem::path& file,
                                    std::unique_ptr<KdDbDatabase>& database, ReadReport& report,
                                    const ReadOptions& options = {});
