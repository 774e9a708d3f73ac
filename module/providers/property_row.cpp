#include <providers/property_row.h>

#include <platform/resources.h>

#include <values/resource_string.h>

KdString ResourceText::text() const
{
    return KdString(static_cast<const wchar_t*>(__ResourceString(id, defaultText, nullptr)));
}

bool ResourceText::matches(const KdString& other) const
{
    // The library's own text serves as it lies; only a missing one takes the loud way.
    const wchar_t* stored = nullptr;
    const int length = LoadStringW(AfxGetResourceHandle(), static_cast<unsigned>(id),
                                   reinterpret_cast<wchar_t*>(&stored), 0);
    if (length > 0)
        return other.view() == std::wstring_view(stored, static_cast<std::size_t>(length));
    return other.compare(static_cast<const wchar_t*>(__ResourceString(id, defaultText, nullptr))) ==
           0;
}

void listRows(std::span<const PropertyRow> rows, const KdDbEntity* entity, KdArray<KdString>& names,
              KdArray<bool>& flags)
{
    for (const PropertyRow& row : rows) {
        if (row.listed(entity)) {
            names.append(row.key.text());
            flags.append(row.readOnly(entity));
        }
    }
}

const PropertyRow* findRow(std::span<const PropertyRow> rows, const KdString& name)
{
    for (const PropertyRow& row : rows) {
        if (row.key.matches(name))
            return &row;
    }
    return nullptr;
}

int answerRow(const PropertyRow& row, const PropertyRequest& request)
{
    return row.read(request, row.kind) && row.choices(request) ? 1 : 0;
}
