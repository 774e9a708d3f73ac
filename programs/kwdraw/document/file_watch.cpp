#include <kwdraw/document/file_watch.h>

#include <QDir>
#include <QFileInfo>

namespace {

/// Milliseconds without a change after which a file counts as written.
constexpr int kSettleTime = 400;

} // namespace

FileWatch::FileWatch(QObject* parent) : QObject(parent)
{
    m_settling.setInterval(kSettleTime);
    const auto settle = [this] {
        m_before = stateNow();
        m_settling.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
    connect(&m_settling, &QTimer::timeout, this, &FileWatch::look);
}

void FileWatch::watch(const QString& path)
{
    m_settling.stop();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_path = path;
    m_known = m_before = stateNow();
    listen();
}

FileWatch::State FileWatch::stateNow() const
{
    const QFileInfo file(m_path);
    return {file.exists(), file.size(), file.lastModified()};
}

void FileWatch::listen()
{
    if (m_path.isEmpty())
        return;
    const QFileInfo file(m_path);
    // A file that is replaced is another file to the watcher; its folder tells of the new one.
    if (file.exists() && m_watcher.files().isEmpty())
        m_watcher.addPath(m_path);
    if (file.dir().exists() && m_watcher.directories().isEmpty())
        m_watcher.addPath(file.absolutePath());
}

void FileWatch::look()
{
    const State now = stateNow();
    if (now != m_before) {
        m_before = now;
        return; // still being written
    }
    m_settling.stop();
    listen();
    if (now == m_known || !now.exists)
        return; // another file of the folder, or one that is about to be replaced
    m_known = now;
    emit changed();
}
