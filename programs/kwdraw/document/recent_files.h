/// The drawings that were open last.
#pragma once

#include <QStringList>

/// Kept with the settings of the user, the last one in front.
class RecentFiles
{
  public:
    static constexpr int kMost = 10;

    RecentFiles();
    const QStringList& files() const { return m_files; }
    void add(const QString& path);
    void remove(const QString& path);
    void clear();

  private:
    void store() const;

    QStringList m_files;
};
