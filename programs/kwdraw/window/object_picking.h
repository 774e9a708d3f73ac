/// Picking in the drawing for a command that waits.
#pragma once

#include <QObject>

#include <vector>

#include <ui/editor_prompt.h>

class QEventLoop;

/// The host's prompt. While it picks, what is picked is the command's and not the selection.
class ObjectPicking : public QObject, public KdUiEditorPrompt
{
    Q_OBJECT
  public:
    using Ids = std::vector<KdDbObjectId>;

    /// Installs itself as the host's prompt, until it goes.
    explicit ObjectPicking(QObject* parent = nullptr);
    ~ObjectPicking() override;

    bool isPicking() const { return m_loop != nullptr; }
    const Ids& picked() const { return m_picked; }
    void add(const Ids& ids);
    void remove(const Ids& ids);
    /// The user is done, or gives up. The command goes on as soon as control is back in its loop.
    void finish();
    void giveUp();

    void beginEditorCommand() override;
    int pickObjects(std::vector<KdDbObjectId>& picked) override;

  signals:
    /// The drawing is to have the user's attention.
    void attentionWanted();
    void begun();
    void changed();
    void ended();

  private:
    void end(int status);

    QEventLoop* m_loop = nullptr; ///< runs while the user picks
    int m_status = 0;
    Ids m_picked;
};
