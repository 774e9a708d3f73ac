#include <kwdraw/document/recent_files.h>

#include <QFileInfo>

#include <kwdraw/document/settings.h>

namespace {

constexpr const wchar_t* kKey = L"RecentFiles";
/// Stands in no path.
constexpr QChar kBetween = '\n';

} // namespace

RecentFiles::RecentFiles()
    : m_files(storedText(kKey).split(kBetween, Qt::SkipEmptyParts).mid(0, kMost))
{
}

void RecentFiles::add(const QString& path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    if (full.contains(kBetween))
        return; // could not be told apart from two paths
    m_files.removeAll(full);
    m_files.prepend(full);
    m_files = m_files.mid(0, kMost);
    store();
}

void RecentFiles::remove(const QString& path)
{
    m_files.removeAll(path);
    store();
}

void RecentFiles::clear()
{
    m_files.clear();
    store();
}

void RecentFiles::store() const
{
    storeText(kKey, m_files.join(kBetween));
}
