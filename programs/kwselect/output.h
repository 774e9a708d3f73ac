/// Where the rows go.
#pragma once

#include <ostream>
#include <string>

#include <common/safe_stream.h>

/// Standard output, or a file that appears under its name when it is finished, whole or not at all.
class Output
{
  public:
    /// @param file  empty: standard output. A file that is there already is refused, unless
    ///              `overwrite`.
    /// @return      false: `problem` is a sentence
    bool open(const std::string& file, bool overwrite, std::string& problem);
    std::ostream& stream();
    /// Puts the file in its place. False: `problem` is a sentence, and what was there still is.
    bool finish(std::string& problem);

  private:
    bool m_isFile = false;
    SafeStream m_file;
};
