#include <kwdraw/scene/picture_store.h>

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <entities/image_definition.h>

namespace {

constexpr qint64 kLargestFile = 64 * 1024 * 1024;
constexpr int kMostPixelsAcross = 4096;
constexpr qint64 kMostPixelsToRead = 400'000'000;

QImage load(const QString& file)
{
    if (file.isEmpty() || QFileInfo(file).size() > kLargestFile)
        return {};
    QImageReader reader(file);
    const QSize size = reader.size();
    if (!size.isValid() || qint64{size.width()} * size.height() > kMostPixelsToRead)
        return {};
    if (size.width() > kMostPixelsAcross || size.height() > kMostPixelsAcross)
        reader.setScaledSize(
            size.scaled(kMostPixelsAcross, kMostPixelsAcross, Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace

QImage PictureStore::find(KdDbObjectId definition)
{
    const auto [entry, isNew] = m_pictures.try_emplace(definition);
    if (isNew)
        entry->second = load(fileOf(definition));
    return entry->second;
}

QString PictureStore::fileOf(KdDbObjectId definition) const
{
    if (!definition.isKindOf(KdDbRasterImageDef::desc()))
        return {};
    const OpenForRead<KdDbRasterImageDef> opened(definition);
    if (!opened || opened->sourceFileName().isEmpty())
        return {};
    const KdString& name = opened->sourceFileName();
    QString path = QString::fromWCharArray(name.kwszPtr(), static_cast<int>(name.view().size()));
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (QDir::isAbsolutePath(path) && QFileInfo(path).isFile())
        return path;
    if (m_folder.isEmpty())
        return {};
    // A drawing that came from elsewhere often has its pictures beside it.
    const QDir folder(m_folder);
    for (const QString& place : {path, QFileInfo(path).fileName()}) {
        const QFileInfo file(folder, place);
        if (!QDir::isAbsolutePath(place) && file.isFile())
            return file.filePath();
    }
    return {};
}
