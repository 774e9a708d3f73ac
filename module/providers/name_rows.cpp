#include <providers/name_rows.h>

#include <algorithm>

#include <values/value_lists.h>

KdString nameIn(std::span<const NameRow> rows, int value)
{
    const auto row = std::ranges::find(rows, value, &NameRow::value);
    return row == rows.end() ? KdString() : row->text.text();
}

void chainNames(ResBuf& head, std::span<const NameRow> rows)
{
    ResBuf* tail = &head;
    for (const NameRow& row : rows)
        tail = PropListUtil::addElementToArray(tail, row.text.text());
}

void chainNames(ResBuf& head, std::span<const ResourceText> texts)
{
    ResBuf* tail = &head;
    for (const ResourceText& text : texts)
        tail = PropListUtil::addElementToArray(tail, text.text());
}
