/// Filters with names, kept as plain text.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <common/expression.h>

/// A file with a filter on each line, `name = expression`; lines that begin with `#` are comments.
/// Names hold no blanks and are looked up without regard to case.
class FilterFile
{
  public:
    struct Filter
    {
        std::wstring name;
        std::wstring text;
        std::size_t line; ///< counted from 1
    };

    /// Reads a file; one that is not there holds no filters. False: `problem` is a sentence with
    /// file and line, and nothing is changed.
    bool read(const std::filesystem::path& file, std::string& problem);

    const std::filesystem::path& path() const { return m_path; }
    const std::vector<Filter>& filters() const { return m_filters; }
    /// Null if there is no filter of that name.
    const Filter* find(const std::wstring& name) const;

    /// Puts the filters that an expression names in the places of their names, and those that
    /// these name. False: one is unknown or names itself, and `problem` is a sentence.
    bool expand(Expression& expression, std::string& problem) const;

  private:
    bool expand(Expression& expression, std::vector<const Filter*>& open,
                std::string& problem) const;

    std::filesystem::path m_path;
    std::vector<Filter> m_filters;
};

/// `kwqselect/filters.txt` in the user's folder of settings: `$XDG_CONFIG_HOME`, otherwise
/// `~/.config`.
std::filesystem::path userFilterFile();
