/// Filters with names, kept as plain text.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <common/expression.h>

/// A file with a filter on each line, `name = expression`; lines that begin with `#` are comments.
/// Names hold no blanks and are looked up without regard to case.
///
/// Each change reads the file anew and writes it whole or not at all, so that what others have
/// written meanwhile stays, and comments and lines that are none stay as they are.
class FilterFile
{
  public:
    struct Filter
    {
        std::wstring name;
        std::wstring text;
        std::size_t line; ///< counted from 1

        bool operator==(const Filter&) const = default;
    };

    /// What is wrong with a line, as a sentence that begins with file and line.
    using Problems = std::vector<std::string>;

    /// Reads a file; one that is not there holds no filters. False: `problem` is a sentence with
    /// file and line, and nothing is changed.
    bool read(const std::filesystem::path& file, std::string& problem);
    /// The same, but keeps what can be read and tells of every line that is wrong.
    Problems readAll(const std::filesystem::path& file);

    /// Gives a filter a name; one that has the name is replaced. False: `problem` is a sentence,
    /// and nothing is changed; so for the others.
    bool save(const std::wstring& name, const std::wstring& text, std::string& problem);
    /// Gives a filter another name, also where other filters name it.
    bool rename(const std::wstring& name, const std::wstring& newName, std::string& problem);
    /// Takes a filter out, unless others name it.
    bool remove(const std::wstring& name, std::string& problem);

    const std::filesystem::path& path() const { return m_path; }
    const std::vector<Filter>& filters() const { return m_filters; }
    /// Null if there is no filter of that name.
    const Filter* find(const std::wstring& name) const;

    /// Puts the filters that an expression names in the places of their names, and those that
    /// these name. False: one is unknown or names itself, and `problem` is a sentence.
    bool expand(Expression& expression, std::string& problem) const;
    /// The same with a text that `expand` takes: it means the same and names no filter.
    std::wstring expandedText(std::wstring text) const;

  private:
    bool expand(Expression& expression, std::vector<const Filter*>& open,
                std::string& problem) const;
    /// Reads the file as it is now, for a change. Empties `problem`, or says why not.
    bool beginChange(std::vector<std::string>& lines, std::string& problem);
    bool write(const std::vector<std::string>& lines, std::string& problem);

    std::filesystem::path m_path;
    std::vector<Filter> m_filters;
};

/// `kwqselect/filters.txt` in the user's folder of settings: `$XDG_CONFIG_HOME`, otherwise
/// `~/.config`.
std::filesystem::path userFilterFile();
