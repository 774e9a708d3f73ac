/// A home of settings for fuzz targets, in memory.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <unistd.h>

/// A folder of this process that the settings of the user lie in while it lives.
class ScratchHome
{
  public:
    ScratchHome() : m_folder("/dev/shm/settings-fuzz-" + std::to_string(getpid()))
    {
        std::filesystem::create_directories(folder());
        setenv("XDG_CONFIG_HOME", m_folder.c_str(), 1);
    }
    ~ScratchHome() { std::filesystem::remove_all(m_folder); }
    ScratchHome(const ScratchHome&) = delete;
    ScratchHome& operator=(const ScratchHome&) = delete;

    std::filesystem::path folder() const { return m_folder / "kwqselect"; }

    /// Makes `name` hold these bytes, and nothing lie beside it that an earlier input has left.
    void put(const char* name, std::string_view bytes) const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder()))
            std::filesystem::remove(entry.path());
        std::ofstream(folder() / name, std::ios::binary) << bytes;
    }
    std::string get(const char* name) const
    {
        std::ifstream file(folder() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path m_folder;
};
