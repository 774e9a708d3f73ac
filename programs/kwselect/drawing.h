/// The drawing that kwselect works on.
#pragma once

#include <memory>
#include <string>

class KdDbDatabase;

/// Holds a drawing open as the working drawing.
class Drawing
{
  public:
    Drawing();
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    /// Reads the file. False, with one line on standard error, if it can't be read.
    bool open(const std::string& file);
    /// False if the file could be read only in part, which has been told.
    bool isComplete() const { return m_complete; }
    KdDbDatabase& database() { return *m_database; }

  private:
    std::unique_ptr<KdDbDatabase> m_database;
    bool m_complete = false;
};
