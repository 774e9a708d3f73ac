/// A stream into a file that is there whole or not at all.
#pragma once

#include <ostream>
#include <streambuf>
#include <string>

#include <runtime/safe_file.h>

/// What is written appears under the file's name when it is finished; without that nothing is left.
class SafeStream : public std::ostream
{
  public:
    SafeStream() : std::ostream(nullptr) { rdbuf(&m_buffer); }

    /// False: `problem` is a sentence that begins with the file's name.
    bool open(const std::filesystem::path& target, const SafeFileRules& rules,
              std::string& problem);
    /// Puts the file in its place. False: `problem` is a sentence, and what was there still is.
    bool finish(std::string& problem);

  private:
    class Buffer : public std::streambuf
    {
      public:
        SafeFile file;

      protected:
        int_type overflow(int_type byte) override;
        std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    };

    bool told(KdErrorStatus status, const KdString& error, std::string& problem) const;

    Buffer m_buffer;
    std::string m_name;
};
