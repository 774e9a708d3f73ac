#include <kwdraw/document/background_task.h>

#include <QMetaObject>

#include <utility>

BackgroundTask::~BackgroundTask()
{
    cancel();
    if (m_thread.joinable())
        m_thread.join();
}

void BackgroundTask::start(Work work)
{
    Q_ASSERT(!isRunning());
    m_isCancelled = false;
    m_permille = -1;
    m_thread = std::thread([this, work = std::move(work)] {
        work([this](double part) { return report(part); });
        QMetaObject::invokeMethod(
            this, [this] { end(); }, Qt::QueuedConnection);
    });
}

bool BackgroundTask::report(double part)
{
    const int permille = static_cast<int>(part * 1000.0);
    if (m_permille.exchange(permille) != permille)
        QMetaObject::invokeMethod(
            this, [this, part] { emit progressed(part); }, Qt::QueuedConnection);
    return !m_isCancelled;
}

void BackgroundTask::end()
{
    m_thread.join();
    emit finished();
}
