/// Notices when a file changes on the disk.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/// Watches one file, also one that is replaced by another of its name or goes for a while.
class FileWatch : public QObject
{
    Q_OBJECT
  public:
    explicit FileWatch(QObject* parent = nullptr);

    /// Watches this file from its present state on; an empty path watches nothing.
    void watch(const QString& path);

  signals:
    /// The file is another one than at `watch`, or than at the last signal, and has stood still for
    /// a moment, so that nobody reads half of it.
    void changed();

  private:
    struct State
    {
        bool exists = false;
        qint64 size = 0;
        QDateTime modified;

        bool operator==(const State& other) const = default;
    };
    State stateNow() const;
    void listen();
    void look();

    QFileSystemWatcher m_watcher;
    QTimer m_settling;
    QString m_path;
    State m_known;  ///< as it was last told
    State m_before; ///< at the last look
};
