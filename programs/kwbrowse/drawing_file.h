/// The drawing that the program shows.
#pragma once

#include <memory>
#include <string>

class KdDbDatabase;

/// Holds a drawing as the working one.
class DrawingFile
{
  public:
    DrawingFile();
    ~DrawingFile();
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    /// Reads a file in place of the drawing that is held, which stays if that fails.
    /// @param message  receives what there is to tell: why it failed, or that only a part was read;
    ///                 otherwise empty
    /// @return         false if it can't be read
    bool open(const std::string& file, std::wstring& message);
    KdDbDatabase* database() const { return m_database.get(); }

  private:
    std::unique_ptr<KdDbDatabase> m_database;
};
