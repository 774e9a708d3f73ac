// Tables of group codes and the members that they fill, for records with many plain members.
#pragma once

#include <cstdint>
#include <type_traits>

#include "record_reader.h"

namespace dxf {

/// One code of a record.
template <class Members>
struct FieldRow
{
    int code;
    void (*take)(RecordReader&, Members&);
};

/// Takes the group if a row has its code.
template <class Members, std::size_t N>
bool takeField(const FieldRow<Members> (&rows)[N], RecordReader& reader, Members& members)
{
    for (const FieldRow<Members>& row : rows) {
        if (row.code == reader.code()) {
            row.take(reader, members);
            return true;
        }
    }
    return false;
}

template <class Member>
struct FieldOf;
template <class Class, class Type>
struct FieldOf<Type Class::*>
{
    using Members = Class;
    using Value = Type;
};

/// The group's value in a member's type. A `std::uint32_t` is the word of a colour.
template <class Value>
Value fieldValue(RecordReader& reader)
{
    if constexpr (std::is_same_v<Value, double>)
        return reader.real();
    else if constexpr (std::is_same_v<Value, bool>)
        return reader.flag();
    else if constexpr (std::is_same_v<Value, KdString>)
        return reader.text();
    else if constexpr (std::is_same_v<Value, KdDbObjectId>)
        return reader.reference();
    else if constexpr (std::is_same_v<Value, KdGePoint3d>)
        return reader.point();
    else if constexpr (std::is_same_v<Value, KdGeVector3d>)
        return reader.vector();
    else if constexpr (std::is_same_v<Value, int> || std::is_same_v<Value, std::uint32_t>)
        return static_cast<Value>(reader.integer());
    else
        return static_cast<Value>(reader.shortInteger());
}

/// Fills one member.
template <auto Member>
void field(RecordReader& reader, typename FieldOf<decltype(Member)>::Members& members)
{
    members.*Member = fieldValue<typename FieldOf<decltype(Member)>::Value>(reader);
}

/// The whole reader of a record of which each group is told by its code alone.
template <const auto& Rows, class Members>
void readFields(RecordReader& reader, Members& members)
{
    while (reader.next())
        takeField(Rows, reader, members);
}

} // namespace dxf
