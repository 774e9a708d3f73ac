/// Numbers that are shown as names: the rows of an enumeration, and readers and choices made of
/// them.
#pragma once

#include <span>

#include <providers/row_readers.h>

/// A stored number and the text that is shown for it.
struct NameRow
{
    int value;
    ResourceText text;
};

/// The text of a number; empty for one that no row has.
KdString nameIn(std::span<const NameRow> rows, int value);

/// Chains the texts as text records, in the order of the rows, behind a record that stands alone.
void chainNames(ResBuf& head, std::span<const NameRow> rows);
void chainNames(ResBuf& head, std::span<const ResourceText> texts);

/// Reads a number as its name.
template <auto Getter, const auto& Names>
bool nameOf(const PropertyRequest& request, ValueKind kind)
{
    const auto value = row_readers::get<Getter>(request.entity);
    request.head.setRestype(kind);
    request.head.setString(nameIn(Names, static_cast<int>(value)));
    return true;
}

/// Offers all names of a table, of `NameRow` or of texts alone.
template <const auto& Names>
bool namesOf(const PropertyRequest& request)
{
    if (request.withChoices)
        chainNames(request.head, Names);
    return true;
}
