/// One loaded resource library.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

struct ResourceTable;

class ResourceLibrary
{
  public:
    /// Null if the file is not there or is no resource library of our version.
    static std::unique_ptr<ResourceLibrary> load(const std::filesystem::path& file);

    /// Empty if there is no such text. Lives as long as the process.
    std::wstring_view find(unsigned int id) const;
    /// The XML of a layout; empty if there is none of that path. Lives as long as the process.
    std::string_view findLayout(std::wstring_view path) const;

  private:
    explicit ResourceLibrary(const ResourceTable& table) : m_table(table) {}

    const ResourceTable& m_table;
};
