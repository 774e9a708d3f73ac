/// Prints command line texts to a stream that others may write to as well.
#pragma once

#include <cstdio>
#include <string_view>

/// Command line texts begin with a line feed rather than end with one. On a shared stream that
/// would leave the last line open, so a text with a line feed in front is written as a whole line.
class LineWriter
{
  public:
    explicit LineWriter(std::FILE* stream) : m_stream(stream) {}
    ~LineWriter();
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    void print(std::wstring_view text);

  private:
    void put(std::wstring_view text);

    std::FILE* m_stream;
    bool m_lineIsOpen = false;
};
