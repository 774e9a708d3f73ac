/// The filters that were run last.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Kept in a file, one a line, the latest first. Each change reads the file anew and writes it
/// whole or not at all, as several programs share it; what can't be written is forgotten with the
/// program.
class RecentFilters
{
  public:
    static constexpr std::size_t kMost = 10;

    explicit RecentFilters(std::filesystem::path file);

    const std::vector<std::wstring>& texts() const { return m_texts; }
    const std::filesystem::path& path() const { return m_file; }
    /// Reads the file as it is now. True if that has changed the texts.
    bool readAgain();
    /// Puts a filter in front; one that is in already moves there.
    void note(const std::wstring& text);
    void clear();

  private:
    void write() const;

    std::filesystem::path m_file;
    std::vector<std::wstring> m_texts;
};

/// `recent_filters.txt` beside the user's filters.
std::filesystem::path recentFilterFile();
