/// Opens drawings beside the window.
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include <database/database.h>
#include <exchange/drawing_reader.h>

#include <kwdraw/document/background_task.h>
#include <kwdraw/scene/scene.h>

/// The model or a sheet.
struct DrawingSpace
{
    QString name;
    KdDbObjectId block;
    std::shared_ptr<const Scene> scene;
};

/// A drawing with all that is shown of it.
struct OpenDrawing
{
    QString path;
    std::unique_ptr<KdDbDatabase> database;
    std::vector<DrawingSpace> spaces; ///< the model, then the sheets in the order of their tabs
    ReadReport report;
};

/// A drawing with nothing in it. When its last owner lets go, whoever keeps something of it in the
/// host is told at once, in that thread; what it holds is destroyed in another one, which takes a
/// while for a large drawing.
std::shared_ptr<OpenDrawing> makeOpenDrawing();

/// Reads one drawing at a time and builds the scenes of its spaces, in a thread of its own. A
/// drawing asked for meanwhile takes the place of the one that is being read.
class DrawingLoader : public QObject
{
    Q_OBJECT
  public:
    explicit DrawingLoader(QObject* parent = nullptr);
    ~DrawingLoader() override;

    void load(const QString& path);
    bool isLoading() const { return m_task.isRunning(); }
    /// The file that is being read; empty while there is none.
    const QString& path() const { return m_path; }
    void cancel();

  signals:
    void progressed(double part);
    /// The drawing is the receiver's.
    void loaded(std::shared_ptr<OpenDrawing> drawing);
    /// `message` is a sentence that names the file.
    void failed(const QString& path, const QString& message);
    void cancelled(const QString& path);

  private:
    struct Outcome;
    static void read(Outcome& outcome, const BackgroundTask::Progress& progress);
    void start(const QString& path);
    void end();

    std::shared_ptr<Outcome> m_outcome;
    QString m_path;
    std::optional<QString> m_next;
    BackgroundTask m_task; ///< last, so that it goes first
};

/// The model and the sheets of a drawing in the order of their tabs, with no scenes.
std::vector<DrawingSpace> spacesOf(const KdDbDatabase& database);
