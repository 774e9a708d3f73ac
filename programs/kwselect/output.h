/// Where the rows go.
#pragma once

#include <fstream>
#include <ostream>
#include <string>

/// Standard output, or a file that appears under its name when it is finished, whole or not at all.
class Output
{
  public:
    Output() = default;
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// @param file  empty: standard output. A file that is there already is refused, unless
    ///              `overwrite`.
    /// @return      false: `problem` is a sentence
    bool open(const std::string& file, bool overwrite, std::string& problem);
    std::ostream& stream();
    /// Puts the file in its place. False: `problem` is a sentence, and what was there still is.
    bool finish(std::string& problem);

  private:
    std::string m_file;
    std::string m_temporary; ///< empty: there is none to remove
    std::ofstream m_stream;
};
