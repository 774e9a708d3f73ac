/// Work in a thread beside the window.
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <thread>

/// Runs one piece of work at a time. The work tells its progress and is told whether to go on; what
/// it leaves behind it hands over itself, to whoever starts it.
class BackgroundTask : public QObject
{
    Q_OBJECT
  public:
    /// Called by the work with the part that is done, 0 to 1; false: give up.
    using Progress = std::function<bool(double part)>;
    using Work = std::function<void(const Progress& progress)>;

    using QObject::QObject;
    /// Has the work give up and waits for it; `finished` is not sent any more.
    ~BackgroundTask() override;

    /// Nothing may be running.
    void start(Work work);
    bool isRunning() const { return m_thread.joinable(); }
    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }

  signals:
    /// Both are sent in the thread of this object.
    void progressed(double part);
    void finished();

  private:
    bool report(double part);
    void end();

    std::thread m_thread;
    std::atomic<bool> m_isCancelled = false;
    std::atomic<int> m_permille = -1; ///< as it was last told
};
