#include "binary_groups.h"

#include <cstring>

namespace dxf {
namespace {

struct CodeRange
{
    int first;
    int last;
    BinaryValue value;
};

// Codes outside of all ranges are texts.
constexpr CodeRange kRanges[] = {
    {10, 59, BinaryValue::Real},      {60, 79, BinaryValue::Int16},
    {90, 99, BinaryValue::Int32},     {110, 149, BinaryValue::Real},
    {160, 169, BinaryValue::Int64},   {170, 179, BinaryValue::Int16},
    {210, 239, BinaryValue::Real},    {270, 289, BinaryValue::Int16},
    {290, 299, BinaryValue::Int8},    {310, 319, BinaryValue::Chunk},
    {370, 389, BinaryValue::Int16},   {400, 409, BinaryValue::Int16},
    {420, 429, BinaryValue::Int32},   {440, 459, BinaryValue::Int32},
    {460, 469, BinaryValue::Real},    {1004, 1004, BinaryValue::Chunk},
    {1010, 1059, BinaryValue::Real},  {1060, 1070, BinaryValue::Int16},
    {1071, 1071, BinaryValue::Int32},
};

} // namespace

BinaryValue binaryValueOf(int code)
{
    for (const CodeRange& range : kRanges) {
        if (code <= range.last)
            return code >= range.first ? range.value : BinaryValue::Text;
    }
    return BinaryValue::Text;
}

bool BinaryGroups::next(Group& group)
{
    constexpr int kComment = 999;
    do {
        group.offset = m_next;
        if (!readCode(group.code) || !readValue(group)) {
            if (m_findings && m_next < m_end)
                m_findings->add(DrawingFinding::BadGroupCode, group.offset);
            m_next = m_end;
            return false;
        }
    } while (group.code == kComment);
    return true;
}

template <class T>
bool BinaryGroups::readRaw(T& value)
{
    if (m_end - m_next < sizeof value)
        return false;
    std::memcpy(&value, m_data + m_next, sizeof value);
    m_next += sizeof value;
    return true;
}

bool BinaryGroups::readCode(int& code)
{
    constexpr std::uint8_t kTwoBytesFollow = 0xFF;
    if (m_width == CodeWidth::OneByte) {
        std::uint8_t narrow = 0;
        if (!readRaw(narrow))
            return false;
        code = narrow;
        if (narrow != kTwoBytesFollow)
            return true;
    }
    std::int16_t wide = 0;
    if (!readRaw(wide))
        return false;
    code = wide;
    return true;
}

template <class T>
bool BinaryGroups::readInteger(Group& group)
{
    T value{};
    if (!readRaw(value))
        return false;
    group.form = Group::Form::Integer;
    group.integer = value;
    return true;
}

bool BinaryGroups::readValue(Group& group)
{
    switch (binaryValueOf(group.code)) {
    case BinaryValue::Real:
        group.form = Group::Form::Real;
        return readRaw(group.real);
    case BinaryValue::Int8:
        return readInteger<std::uint8_t>(group);
    case BinaryValue::Int16:
        return readInteger<std::int16_t>(group);
    case BinaryValue::Int32:
        return readInteger<std::int32_t>(group);
    case BinaryValue::Int64:
        return readInteger<std::int64_t>(group);
    case BinaryValue::Chunk:
        return readChunk(group);
    case BinaryValue::Text:
        break;
    }
    return readText(group);
}

bool BinaryGroups::readText(Group& group)
{
    const char* const begin = m_data + m_next;
    const void* const terminator = std::memchr(begin, 0, m_end - m_next);
    if (!terminator)
        return false;
    const auto length = static_cast<std::size_t>(static_cast<const char*>(terminator) - begin);
    group.form = Group::Form::Text;
    group.text = {begin, length};
    m_next += length + 1;
    return true;
}

bool BinaryGroups::readChunk(Group& group)
{
    std::uint8_t length = 0;
    if (!readRaw(length) || m_end - m_next < length)
        return false;
    group.form = Group::Form::Chunk;
    group.text = {m_data + m_next, length};
    m_next += length;
    return true;
}

} // namespace dxf
