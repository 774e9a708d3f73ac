// Reads groups from the binary form: a code of one or two bytes, a value by the code.
#pragma once

#include "findings.h"
#include "group.h"

namespace dxf {

/// The first bytes of every binary file.
constexpr std::string_view kBinarySentinel{"\x41\x75\x74\x6F\x43\x41\x44\x20\x42\x69\x6E"
                                           "\x61\x72\x79\x20\x44\x58\x46\x0D\x0A\x1A\x00",
                                           22};

enum class CodeWidth : std::uint8_t
{
    OneByte, ///< up to R12; FF announces a code of two bytes
    TwoBytes,
};

/// How the value of a group code is stored.
enum class BinaryValue : std::uint8_t
{
    Text,
    Real,
    Int8,
    Int16,
    Int32,
    Int64,
    Chunk,
};
BinaryValue binaryValueOf(int code);

class BinaryGroups
{
  public:
    /// Reads `data` from `begin` to `end`. `findings` may be null.
    BinaryGroups(const char* data, std::size_t begin, std::size_t end, CodeWidth width,
                 Findings* findings)
        : m_data(data), m_next(begin), m_end(end), m_width(width), m_findings(findings)
    {
    }

    /// The next group that is no comment; false at the end or where the rest is cut off.
    bool next(Group& group);
    /// The next group 0, leaving out all others; false at the end.
    bool nextRecord(Group& group)
    {
        bool more = next(group);
        while (more && group.code != 0)
            more = next(group);
        return more;
    }
    std::size_t offset() const { return m_next; }

  private:
    bool readCode(int& code);
    bool readValue(Group& group);
    bool readText(Group& group);
    bool readChunk(Group& group);
    template <class T>
    bool readRaw(T& value);
    template <class T>
    bool readInteger(Group& group);

    const char* m_data;
    std::size_t m_next;
    std::size_t m_end;
    CodeWidth m_width;
    Findings* m_findings;
};

} // namespace dxf
