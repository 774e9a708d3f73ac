/// Writes parts of made drawings and reads them again.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include <exchange/drawing_writer.h>

#include "../exchange/made_drawing.h"

/// A folder that goes with the object, with all that it holds.
class TemporaryFolder
{
  public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "written-XXXXXX").string();
        m_path = mkdtemp(name.data());
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path operator/(const char* name) const { return m_path / name; }
    std::size_t entries() const
    {
        using Iterator = std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(Iterator(m_path), Iterator()));
    }

  private:
    std::filesystem::path m_path;
};

/// The bytes of a file.
std::string contentOf(const std::filesystem::path& path);

/// What writing some entities of a drawing gave: the bytes, and the drawing read from them.
struct Written
{
    std::string bytes;
    ReadDrawing drawing;

    bool holds(const std::string& text) const { return bytes.find(text) != std::string::npos; }
};

/// Writes the entities of these handles. Fails the test if that does not succeed.
Written writeOf(const std::string& content, const std::vector<KdDbHandle>& handles);
