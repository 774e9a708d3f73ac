/// Pictures of image files.
#pragma once

#include <unordered_map>

#include <QImage>
#include <QString>

#include <database/object_id.h>

/// Loads each picture once. Large ones are made smaller on the way, as nobody sees more than a
/// screen of them at a time.
class PictureStore
{
  public:
    /// @param folder  of the drawing; may be empty
    explicit PictureStore(const QString& folder) : m_folder(folder) {}

    /// @param definition  a `KdDbRasterImageDef`
    /// @return            null if the file is not there, not readable or much too large
    QImage find(KdDbObjectId definition);

  private:
    QString fileOf(KdDbObjectId definition) const;

    QString m_folder;
    std::unordered_map<KdDbObjectId, QImage> m_pictures;
};
