/// The drawing that is open, and which of its spaces is shown.
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

#include <kwdraw/document/background_task.h>
#include <kwdraw/document/drawing_loader.h>
#include <kwdraw/document/selection.h>

/// Makes the drawing the host's working one, and the space that is shown its current space. What
/// is selected belongs to the space and is forgotten with it.
class Document : public QObject
{
    Q_OBJECT
  public:
    explicit Document(QObject* parent = nullptr);
    ~Document() override;

    /// Takes a drawing in place of the one so far, which goes. It shows the layout that was active
    /// when it was stored.
    void open(std::shared_ptr<OpenDrawing> drawing);
    /// The same with a new state of the same file: what was selected and shown is so again, as far
    /// as it is still there.
    void reload(std::shared_ptr<OpenDrawing> drawing);

    bool isOpen() const { return m_drawing != nullptr; }
    /// Only while a drawing is open.
    const OpenDrawing& drawing() const { return *m_drawing; }
    Selection& selection() { return m_selection; }

    /// The number of the space that is shown, or that an open block hides; -1 without a drawing.
    int space() const { return m_space; }
    void showSpace(int number);
    /// False if there is no layout of that name; case does not count.
    bool showSpace(const QString& name);

    /// Shows the inside of a block definition once its scene is built; `blockFailed` if it can't.
    void openBlock(KdDbObjectId block);
    void closeBlock();
    bool hasOpenBlock() const { return m_blockScene != nullptr; }
    QString openBlockName() const;

    /// While it builds a scene nobody else may use the drawing.
    bool isBusy() const { return m_building.isRunning(); }
    void cancelBuilding() { m_building.cancel(); }

    /// What is shown; null without a drawing.
    std::shared_ptr<const Scene> scene() const;

  signals:
    /// The drawing goes, but still stands.
    void leaving();
    /// Another space, block or drawing is shown.
    void spaceChanged();
    void busyChanged();
    void building(double part);
    void blockFailed(const QString& message);

  private:
    struct Remembered;
    Remembered remember() const;
    /// Has whatever is being built given up first; true if `drawing` waits for that.
    bool isPutOff(std::shared_ptr<OpenDrawing>& drawing, bool isReload);
    void take(std::shared_ptr<OpenDrawing> drawing);
    void recall(const Remembered& remembered);
    /// What of these lies in the space that is shown.
    void select(const std::vector<KdDbHandle>& handles);
    void openBlock(KdDbObjectId block, std::vector<KdDbHandle> selected);
    void enter(int number);
    void leaveBlock();
    void endBuilding();

    std::shared_ptr<OpenDrawing> m_drawing;
    Selection m_selection;
    int m_space = -1;
    KdDbObjectId m_block;
    std::vector<KdDbHandle> m_selectedInBlock; ///< as soon as its scene is built
    std::shared_ptr<const Scene> m_blockScene;
    std::shared_ptr<OpenDrawing> m_waiting; ///< comes in place of the drawing when building ends
    bool m_waitingIsReload = false;
    std::shared_ptr<const Scene> m_built; ///< what the task leaves behind
    BackgroundTask m_building;
};
