/// The selected entities as texts, tables and drawings.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <QObject>
#include <QString>
#include <QTimer>

#include <common/module.h>
#include <kwdraw/document/background_task.h>
#include <kwdraw/panels/property_merge.h>

class KdDbDatabase;
class SelectionRows;

enum class ExportFormat
{
    Handles, ///< one a line
    Csv,
    Json,
    Table, ///< columns between tabs under their names, as spreadsheets take them
    Drawing,
};

struct ExportOptions
{
    ExportFormat format = ExportFormat::Handles;
    std::vector<std::string> columns = {}; ///< for csv, json and tables; see `EntityColumns`
    bool overwrite = false;                ///< lets a file that is there be replaced
};

/// "Handle", "Type" and "Layer", then the properties that are shown in common.
std::vector<std::string> exportColumns(const std::vector<MergedProperty>& shown);

/// Writes entities out so that the window stays awake: rows a slice at a time, a drawing in a
/// thread of its own. The entities must stay in the working drawing until `finished`, or until the
/// object goes, which gives up rows and leaves no file, and waits for a drawing.
class SelectionExport : public QObject
{
    Q_OBJECT
  public:
    /// @param module    outlives the object
    /// @param database  the working drawing
    /// @param drawing   the file that it comes from, which is never written over
    SelectionExport(const Module& module, const KdDbDatabase& database,
                    std::filesystem::path drawing, QObject* parent = nullptr);
    ~SelectionExport() override;

    /// Begins to write a file, which appears when it is whole.
    void toFile(const std::vector<KdDbObjectId>& entities, const std::filesystem::path& file,
                const ExportOptions& options);
    /// Begins to fill the clipboard; all formats but a drawing.
    void toClipboard(const std::vector<KdDbObjectId>& entities, const ExportOptions& options);
    bool isRunning() const { return m_rows || m_task.isRunning(); }
    /// Gives up rows; a drawing that has been begun is written to its end.
    void cancel();

  signals:
    void progressed(int done, int all);
    /// @param problem  a sentence that names the file, or empty on success
    void finished(const QString& problem);

  private:
    void writeDrawing(const std::vector<KdDbObjectId>& entities, const std::filesystem::path& file,
                      bool overwrite);
    void start(std::unique_ptr<SelectionRows> rows);
    void writeOn();
    void end(const std::string& problem);

    const Module& m_module;
    const KdDbDatabase& m_database;
    std::filesystem::path m_drawing;
    std::unique_ptr<SelectionRows> m_rows;
    QTimer m_slice;
    std::string m_problem; ///< of the drawing that was written last
    BackgroundTask m_task;
};
