/// The drawing that kwselect works on.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <exchange/drawing_reader.h>

#include "exit_status.h"

/// Reads a drawing so that Ctrl+C cancels. On failure one line on standard error says why.
/// @return `kSelected`, `kCannotWork` or `kInterrupted`
ExitStatus readOrTell(const std::string& file, std::unique_ptr<KdDbDatabase>& database,
                      ReadReport& report, ReadOptions options);

/// Holds a drawing open as the working drawing, to the end of the process.
class Drawing
{
  public:
    Drawing() = default;
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    /// Reads the file; see `readOrTell`.
    ExitStatus open(const std::string& file);
    /// False if some of what stands in the file could not be read. This may come to light only when
    /// an entity is asked about its properties.
    bool isComplete() const { return m_lost == 0; }
    /// False if another program has changed the file since it was opened, which is told on standard
    /// error: the answer may be wrong.
    bool isIntact() const;
    /// Entities of kinds that are not known.
    std::size_t unreadEntities() const { return m_report.unknownEntities; }
    KdDbDatabase& database() { return *m_database; }
    /// Tells on standard error what could not be read.
    void tellDamage() const;

  private:
    void note(const ReadFinding& finding);

    std::string m_file;
    std::unique_ptr<KdDbDatabase> m_database;
    ReadReport m_report;
    std::vector<ReadFinding> m_damage; ///< the first of it
    std::size_t m_lost = 0;
};
