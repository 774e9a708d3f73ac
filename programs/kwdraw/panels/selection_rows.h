/// Rows of entities on their way to a file or the clipboard.
#pragma once

#include <chrono>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <common/entity_columns.h>
#include <common/safe_stream.h>
#include <kwdraw/panels/selection_export.h>
#include <kwdraw/panels/sliced_visit.h>

class SelectionRows
{
  public:
    SelectionRows(const Module& module, std::vector<KdDbObjectId> entities,
                  const ExportOptions& options, const std::string& drawing);

    /// To a file; without this to a text. False: `problem` is a sentence.
    bool open(const std::filesystem::path& file, const SafeFileRules& rules, std::string& problem);
    /// Writes on for about that long.
    void writeOn(std::chrono::milliseconds time);
    bool isDone() const { return m_visit.isDone(); }
    std::size_t written() const { return m_visit.visited(); }
    std::size_t size() const { return m_visit.entities().size(); }
    /// Puts a file in its place. False: `problem` is a sentence.
    bool finish(std::string& problem);

    bool isText() const { return !m_isFile; }
    std::string text() const { return m_text.str(); }

  private:
    void begin();
    static void take(void* context, const quick_select::Entity& entity);

    SlicedVisit m_visit;
    RowFormat m_format;
    std::vector<std::string> m_names;
    EntityColumns m_columns;
    bool m_isFile = false;
    SafeStream m_file;
    std::ostringstream m_text;
    std::unique_ptr<RowWriter> m_writer;
};
